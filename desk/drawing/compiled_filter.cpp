#include "desk/drawing/compiled_filter.h"

#include "basic/text.h"
#include "desk/drawing/class_names.h"
#include "desk/drawing/inside.h"
#include "desk/dxf/number_text.h"

#include <cmath>

// A selection filter is a list of conditions, each a group code and a value, as (ssget "X" ...) takes it (the
// host's documentation, "Selection Set Filter Lists"). Conditions in a row must all hold. Conditions with the
// code -4 are operators, of two kinds:
//   - grouping, "<AND" ... "AND>" and so on, which nest;
//   - relations, ">=" and so on, which hold for the one condition behind them, of a number or a point.
// Compiling makes a tree of it, so that a filter's faults are told before anything is selected, and does once
// what would cost time at each of 100,000 entities: patterns are taken apart, names are looked up in the name
// table.

namespace drawing {

CompiledFilter::CompiledFilter(const Drawing& drawing, const Filter& filter)
    : drawing_(drawing), store_(Inside::store(drawing)) {
    // The whole filter is a group without a closing word; an empty one is an AND of nothing and passes all.
    std::size_t position = 0;
    root_ = parseGroup(filter, position, {});
    findNames();
}

CompiledFilter::Node CompiledFilter::parseGroup(const Filter& filter, std::size_t& position,
                                                const std::string& closing) const {
    constexpr std::pair<const char*, Node::Kind> kOperators[] = {
        {"AND", Node::Kind::And}, {"OR", Node::Kind::Or}, {"XOR", Node::Kind::Xor}, {"NOT", Node::Kind::Not}};
    constexpr std::pair<const char*, Relation> kRelations[] = {
        {"=", Relation::Equal},     {"!=", Relation::NotEqual},     {"/=", Relation::NotEqual},
        {"<>", Relation::NotEqual}, {"<", Relation::Less},          {"<=", Relation::LessEqual},
        {">", Relation::Greater},   {">=", Relation::GreaterEqual}, {"&", Relation::AnyBit},
        {"&=", Relation::AllBits},  {"*", Relation::Anything}};
    constexpr int kOperatorCode = -4;

    // Recursive descent: an opening operator begins a group that reads on until its own closing one, so that
    // what closes is always the innermost open group, and a closing operator without one is unknown.
    Node group;
    Relation relation = Relation::Equal;
    while (position < filter.size()) {
        const FilterCondition& condition = filter[position++];
        if (condition.code != kOperatorCode) {
            Node child;
            child.kind = Node::Kind::Test;
            child.test = compile(condition, relation);
            group.children.push_back(std::move(child));
            // A relation holds for the one condition behind it; then equality counts again.
            relation = Relation::Equal;
            continue;
        }
        const auto* word = std::get_if<std::string>(&condition.value);
        if (word == nullptr) raise(kInvalidInput, "a filter operator that is no text");
        const std::string name = basic::toUpper(*word);
        if (!closing.empty() && name == closing) return group;
        bool known = false;
        for (const auto& [text, kind] : kOperators) {
            if (name != std::string("<").append(text)) continue;
            Node child = parseGroup(filter, position, std::string(text) + ">");
            child.kind = kind;
            group.children.push_back(std::move(child));
            known = true;
        }
        for (const auto& [text, value] : kRelations) {
            if (name == text) {
                relation = value;
                known = true;
            }
        }
        if (!known) raise(kInvalidInput, "filter operator " + *word);
    }
    if (!closing.empty()) raise(kInvalidInput, "filter without " + closing);
    return group;
}

CompiledFilter::Test CompiledFilter::compile(const FilterCondition& condition, Relation relation) const {
    Test test;
    test.code = condition.code;
    test.relation = relation;
    // The value's kind decides how it is compared, not the code's: a number is looked for in any group that
    // can be read as one, a text in the group's text.
    if (const auto* text = std::get_if<std::string>(&condition.value)) {
        test.isText = true;
        test.text = *text;
        if (hasWildcard(*text)) test.pattern.emplace(*text);
        if (test.code == 2 || test.code == 8) matchNames(test);
    } else if (const auto* number = std::get_if<double>(&condition.value)) {
        test.number = *number;
    } else {
        test.isPoint = true;
        test.point = std::get<Point3>(condition.value);
    }
    return test;
}

void CompiledFilter::matchNames(Test& test) const {
    if (!test.pattern) {
        test.name = store_.names.find(test.text);
        return;
    }
    // A drawing has few names and many entities: matching each name once makes a look at an entity a look
    // into a table.
    test.matching.assign(store_.names.size(), 0);
    for (NameId name = 1; name < store_.names.size(); ++name) {
        test.matching[name] = test.pattern->matches(store_.names.text(name)) ? 1 : 0;
    }
}

void CompiledFilter::findNames() {
    // At the top level all conditions must hold, so one on the name says which entities can pass at all:
    // those that the store's index lists under the names. Inside of an operator it wouldn't (OR, NOT).
    for (const Node& child : root_.children) {
        const Test& test = child.test;
        if (child.kind != Node::Kind::Test || test.code != 2 || !test.isText) continue;
        if (test.relation != Relation::Equal) continue;
        names_.emplace();
        if (test.name != NameKey::None) names_->push_back(test.name);
        for (NameId name = 1; name < test.matching.size(); ++name) {
            // A key has the number of the spelling that was met first.
            const NameKey key = store_.names.key(name);
            if (indexOf(key) == name && test.matching[name] != 0) names_->push_back(key);
        }
        return;
    }
}

bool CompiledFilter::passes(EntityId id) const { return passes(id, root_); }

bool CompiledFilter::passes(EntityId id, const Node& node) const {
    // Children are counted only where their number decides. An empty AND passes everything, an empty OR
    // nothing; a NOT takes one condition, and of several passes where none holds.
    const auto count = [&] {
        std::size_t hits = 0;
        for (const Node& child : node.children) hits += passes(id, child) ? 1 : 0;
        return hits;
    };
    switch (node.kind) {
        case Node::Kind::And:
            for (const Node& child : node.children) {
                if (!passes(id, child)) return false;
            }
            return true;
        case Node::Kind::Or:
            return count() > 0;
        case Node::Kind::Xor:
            return count() == 1;
        case Node::Kind::Not:
            return count() == 0;
        case Node::Kind::Test:
            return passes(id, node.test);
    }
    return false;
}

bool CompiledFilter::passes(EntityId id, const Test& test) const {
    if (test.relation == Relation::Anything) return true;
    // What the record holds needs no look at the entity's bytes.
    const Record record = store_.record(id);
    switch (test.code) {
        case 0:
            return matches(test, store_.typeName(record.type));
        case 2:
            return matchesName(test, record.name);
        case 5:
            // As the file writes handles: hexadecimal, no leading zeros.
            return basic::equalIgnoringCase(test.text, dxf::handleText(record.handle));
        case 8:
            return matchesName(test, record.layer);
        case 60:
            return matches(test, record.has(kInvisible) ? 1.0 : 0.0);
        // Codes that an entity may lack have their defaults: colour by layer, visible, in model space. The
        // space (67) and its tab (410) are told by the block that owns the entity, not by its groups: a file
        // may lack the one, and R12 knows nothing of the other.
        case 62:
            return matches(test, drawing_.common(id).color);
        case 67:
            return matches(test, drawing_.blocks()[record.owner].isPaperSpace ? 1.0 : 0.0);
        case 100:
            return matchesMarker(id, test);
        case 410:
            return matches(test, drawing_.blocks()[record.owner].shownLayoutName());
        default:
            return matchesGroups(id, test);
    }
}

bool CompiledFilter::matches(const Test& test, std::string_view text) const {
    // Texts know equal and not equal alone; any other relation counts as equal.
    const bool equal = test.pattern ? test.pattern->matches(text) : basic::equalIgnoringCase(test.text, text);
    return equal == (test.relation != Relation::NotEqual);
}

bool CompiledFilter::matches(const Test& test, double number) {
    // The bits of a number are those of its whole part; a filter on flags (70) asks for them with & and &=.
    // What is compared as text elsewhere never equals a number.
    if (test.isText || test.isPoint) return false;
    const auto bits = [](double value) { return static_cast<std::int64_t>(value); };
    switch (test.relation) {
        case Relation::Equal:
            return number == test.number;
        case Relation::NotEqual:
            return number != test.number;
        case Relation::Less:
            return number < test.number;
        case Relation::LessEqual:
            return number <= test.number;
        case Relation::Greater:
            return number > test.number;
        case Relation::GreaterEqual:
            return number >= test.number;
        case Relation::AnyBit:
            return (bits(number) & bits(test.number)) != 0;
        case Relation::AllBits:
            return (bits(number) & bits(test.number)) == bits(test.number);
        case Relation::Anything:
            return true;
    }
    return false;
}

bool CompiledFilter::matchesName(const Test& test, NameId name) const {
    // Names that came after the compiling can't be asked for: a filter lives for one selection.
    const bool listed = name < test.matching.size() && test.matching[name] != 0;
    const bool equal = test.pattern ? listed : name != kNoName && store_.names.key(name) == test.name;
    return equal == (test.relation != Relation::NotEqual);
}

bool CompiledFilter::matchesMarker(EntityId id, const Test& test) const {
    // Group 100 asks for any of the subclasses that an entity is made of. A drawing of R12 has no markers, so
    // that those of the types known to the host are taken from its table of classes; what the file itself has
    // counts too, for types that the table lacks.
    if (!test.isText) return false;
    if (matches(test, "AcDbEntity")) return true;
    const std::string_view type = store_.typeName(store_.record(id).type);
    if (const EntityClass* known = entityClass(type)) {
        for (std::string_view marker : known->markers) {
            if (!marker.empty() && matches(test, marker)) return true;
        }
    }
    // Of these the class depends on the entity's flags.
    if (type == "POLYLINE" || type == "DIMENSION" || type == "INSERT") {
        if (matches(test, drawing_.objectName(id))) return true;
    }
    dxf::TagReader reader = store_.reader(id);
    for (dxf::Tag tag; reader.next(tag) && tag.code < 1000;) {
        if (tag.code == 100 && matches(test, tag.raw)) return true;
    }
    return false;
}

bool CompiledFilter::matchesGroups(EntityId id, const Test& test) const {
    // Any other code: each group of that code is tried, as the host does with groups that an entity repeats.
    // A point's Y and Z stand behind its X under codes 10 and 20 higher, so it is complete when the next X
    // comes or the entity ends.
    dxf::TagReader reader = store_.reader(id);
    Point3 point;
    int pointCode = -1;
    // Within 1e-9 units: the file's decimals were rounded when they were written.
    const auto near = [&] { return pointCode == test.code && distance(point, test.point) < 1e-9; };
    std::string scratch;
    for (dxf::Tag tag; reader.next(tag);) {
        if (test.isPoint) {
            if (tag.code == test.code) {
                if (near()) return true;
                point = {tag.numberOr(0), 0, 0};
                pointCode = test.code;
            }
            if (tag.code == test.code + 10) point.y = tag.numberOr(0);
            if (tag.code == test.code + 20) point.z = tag.numberOr(0);
        } else if (tag.code == test.code) {
            // A text where a number was asked for reads as NAN, which is equal to nothing.
            if (test.isText ? matches(test, tag.text(scratch)) : matches(test, tag.numberOr(NAN)))
                return true;
        }
    }
    return test.isPoint && near();
}

}  // namespace drawing
