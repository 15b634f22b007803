#include "desk/model/selection_sets.h"

#include "basic/text.h"
#include "desk/model/entity.h"
#include "desk/model/host_errors.h"
#include "desk/shapes/pick.h"

#include <algorithm>

namespace model {

using drawing::EntityId;

namespace {

/// Selection modes of the host.
enum Mode : std::int16_t { kWindow = 0, kCrossing = 1, kLast = 4, kAll = 5 };

bool isLeftOut(const Variant& value) { return value.isMissing() || value.isEmpty(); }

Variant argument(const Arguments& arguments, std::size_t at) {
    return at < arguments.size() ? arguments[at] : Variant(basic::Missing{});
}

bool isPoint(const Variant& value) {
    return value.is(Variant::Kind::DoubleArray) || value.is(Variant::Kind::VariantArray);
}

/// The newest entity of model space that can be seen.
std::vector<EntityId> last(const drawing::Drawing& drawing) {
    const std::vector<EntityId>& all = drawing.blocks()[drawing.modelSpace()].entities;
    const auto found = std::find_if(all.rbegin(), all.rend(), [&](EntityId id) {
        return !drawing.isErased(id) && drawing.isDisplayed(id);
    });
    return found == all.rend() ? std::vector<EntityId>{} : std::vector<EntityId>{*found};
}

}  // namespace

drawing::Filter toFilter(const Context& context, const Variant& types, const Variant& data) {
    drawing::Filter filter;
    if (isLeftOut(types) && isLeftOut(data)) return filter;
    const basic::Shorts& codes = types.shorts();
    const basic::Array& values = data.array();
    if (codes.size() != values.size()) drawing::raise(drawing::kInvalidInput, "filter");
    for (std::size_t i = 0; i < codes.size(); ++i) {
        drawing::FilterCondition condition{codes[i], {}};
        if (values[i].is(Variant::Kind::Text)) {
            condition.value = values[i].text();
        } else if (isPoint(values[i])) {
            condition.value = toPoint(context, values[i]);
        } else {
            condition.value = toNumber(context, values[i]);
        }
        filter.push_back(std::move(condition));
    }
    return filter;
}

void SelectionSet::requireAlive() const {
    if (removed_) drawing::raise(drawing::kObjectErased, name_);
}

void SelectionSet::add(const std::vector<EntityId>& found) {
    for (const EntityId id : found) {
        if (id >= known_.size()) known_.resize(id + std::size_t{1});
        if (!known_[id]) entities_.push_back(id);
        known_[id] = true;
    }
}

Variant SelectionSet::count() const {
    requireAlive();
    return static_cast<std::int32_t>(entities_.size());
}

Variant SelectionSet::item(Arguments& arguments) {
    requireAlive();
    requireCount(arguments, 1, 1, "Item");
    const std::int32_t index = arguments[0].integer();
    if (index < 0 || static_cast<std::size_t>(index) >= entities_.size()) {
        drawing::raise(drawing::kInvalidInput, "index");
    }
    return makeEntity(context_, entities_[static_cast<std::size_t>(index)]);
}

Variant SelectionSet::clear(Arguments& arguments) {
    requireAlive();
    requireCount(arguments, 0, 0, "Clear");
    entities_.clear();
    known_.clear();
    return {};
}

Variant SelectionSet::select(Arguments& arguments) {
    requireAlive();
    requireCount(arguments, 1, 5, "Select");
    const drawing::Drawing& drawing = *context_->drawing;
    const drawing::Filter filter = toFilter(*context_, argument(arguments, 3), argument(arguments, 4));
    const std::int32_t mode = arguments[0].integer();
    if (mode == kAll) {
        add(drawing.select(filter));
    } else if (mode == kLast) {
        add(drawing.select(filter, last(drawing)));
    } else if (mode == kWindow || mode == kCrossing) {
        const geometry::Point3 first = toPoint(*context_, argument(arguments, 1));
        const geometry::Point3 second = toPoint(*context_, argument(arguments, 2));
        add(drawing.select(filter, shapes::selectWindow(drawing, first, second, mode == kCrossing)));
    } else {
        drawing::raise(drawing::kInvalidInput, "mode");
    }
    return {};
}

Variant SelectionSet::selectOnScreen(Arguments& arguments) {
    requireAlive();
    requireCount(arguments, 0, 2, "SelectOnScreen");
    const drawing::Filter filter = toFilter(*context_, argument(arguments, 0), argument(arguments, 1));
    const drawing::Drawing& drawing = *context_->drawing;
    const SelectionPick pick = context_->environment->prompter->selectEntities(drawing, "Select objects: ");
    if (pick.answer != Answer::Given) raise(kPromptFailed, "SelectOnScreen: broken off by the user");
    add(drawing.select(filter, pick.entities));
    return {};
}

Variant SelectionSet::remove(Arguments& arguments) {
    requireAlive();
    requireCount(arguments, 0, 0, "Delete");
    removed_ = true;
    if (const std::shared_ptr<SelectionSets> sets = sets_.lock()) sets->remove(*this);
    return {};
}

void SelectionSet::enumerate(const std::function<bool(const Variant&)>& visit) {
    requireAlive();
    for (std::size_t i = 0; i < entities_.size(); ++i) {
        if (!visit(makeEntity(context_, entities_[i]))) return;
    }
}

const MemberTable& SelectionSet::members() const {
    using S = SelectionSet;
    static const MemberTable table({
        property<&S::name>("Name"),
        property<&S::count>("Count"),
        method<&S::item>("Item"),
        method<&S::clear>("Clear"),
        method<&S::select>("Select"),
        method<&S::selectOnScreen>("SelectOnScreen"),
        method<&S::remove>("Delete"),
    });
    return table;
}

std::shared_ptr<SelectionSet> SelectionSets::find(const std::string& name) const {
    for (const auto& set : sets_) {
        if (basic::equalIgnoringCase(set->setName(), name)) return set;
    }
    return nullptr;
}

Variant SelectionSets::add(Arguments& arguments) {
    requireCount(arguments, 1, 1, "Add");
    const std::string& name = arguments[0].text();
    if (name.empty()) drawing::raise(drawing::kInvalidInput, "name");
    if (find(name) != nullptr) raise(kSelectionSetExists, name);
    const auto self = std::static_pointer_cast<SelectionSets>(shared_from_this());
    sets_.push_back(std::make_shared<SelectionSet>(context_, self, name));
    return sets_.back();
}

Variant SelectionSets::item(Arguments& arguments) {
    requireCount(arguments, 1, 1, "Item");
    if (arguments[0].is(Variant::Kind::Text)) {
        std::shared_ptr<SelectionSet> set = find(arguments[0].text());
        if (set == nullptr) drawing::raise(drawing::kKeyNotFound, arguments[0].text());
        return set;
    }
    const std::int32_t index = arguments[0].integer();
    if (index < 0 || static_cast<std::size_t>(index) >= sets_.size()) {
        drawing::raise(drawing::kInvalidInput, "index");
    }
    return sets_[static_cast<std::size_t>(index)];
}

void SelectionSets::enumerate(const std::function<bool(const Variant&)>& visit) {
    for (const auto& set : std::vector(sets_)) {
        if (!visit(set)) return;
    }
}

void SelectionSets::remove(const SelectionSet& set) {
    std::erase_if(sets_, [&](const auto& held) { return held.get() == &set; });
}

const MemberTable& SelectionSets::members() const {
    using S = SelectionSets;
    static const MemberTable table(
        {property<&S::count>("Count"), method<&S::add>("Add"), method<&S::item>("Item")});
    return table;
}

}  // namespace model
