#pragma once

#include "tests/fakes/fake_host_entities.h"

#include <deque>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace fakes {

/// A block definition with the attributes that an insertion makes, as tag and default text.
class FakeBlock : public FakeObject {
  public:
    using Attributes = std::vector<std::pair<std::string, std::string>>;
    FakeBlock(std::string name, Attributes attributes)
        : name(std::move(name)), attributes(std::move(attributes)) {}

    std::string name;
    Attributes attributes;
    bool isLayout = false;
    bool isXRef = false;

    Variant get(std::string_view member) override {
        if (is(member, "Name")) return Variant(name);
        if (is(member, "IsLayout")) return Variant(isLayout);
        if (is(member, "IsXRef")) return Variant(isXRef);
        return FakeObject::get(member);
    }
};
using FakeBlockPtr = std::shared_ptr<FakeBlock>;

class FakeSelectionSet;

/// The drawing and the answers that its user will give. Asking for an answer that no test queued is a fault
/// of the test and leaves the logic as std::logic_error.
struct FakeDrawing : DrawingState {
    std::vector<FakeBlockPtr> blocks;
    std::map<std::string, FakeBlockPtr> files;  ///< block files by full path
    std::vector<FakeEntityPtr> entities;        ///< of all spaces, the erased ones too
    std::vector<std::shared_ptr<FakeSelectionSet>> sets;
    std::deque<std::optional<FakeEntityPtr>> picks;                    ///< without value: Escape
    std::deque<std::optional<std::vector<FakeEntityPtr>>> selections;  ///< the same
    std::deque<Point> pickPlaces;  ///< where the next picks were clicked; at the origin without one
    std::deque<std::optional<Point>> points;   ///< without value: Escape or Enter
    std::deque<std::optional<double>> angles;  ///< radians; the same
    std::vector<std::string> prompts;
    std::vector<Variant> bases;  ///< the base points of the prompts for points and angles

    FakeBlockPtr findBlock(std::string_view name) const {
        for (const FakeBlockPtr& block : blocks)
            if (basic::NameEqual{}(block->name, name)) return block;
        return nullptr;
    }
    /// A reference in model space with its block's attributes; `texts` replace their defaults from the first
    /// on.
    FakeReferencePtr addReference(const std::string& block, Point point,
                                  const std::vector<std::string>& texts = {}) {
        auto reference = std::make_shared<FakeReference>(*this, block);
        reference->point = point;
        if (const FakeBlockPtr definition = findBlock(block)) {
            for (const auto& [tag, text] : definition->attributes) {
                const std::size_t index = reference->attributes.size();
                reference->attributes.push_back(std::make_shared<FakeAttribute>(
                    tag, index < texts.size() ? texts[index] : text, reference));
            }
        }
        entities.push_back(reference);
        return reference;
    }
    /// The living entities of a class, oldest first.
    template <typename Entity>
    std::vector<std::shared_ptr<Entity>> living() const {
        std::vector<std::shared_ptr<Entity>> found;
        for (const FakeEntityPtr& any : entities)
            if (auto entity = std::dynamic_pointer_cast<Entity>(any); entity && !entity->erased)
                found.push_back(std::move(entity));
        return found;
    }
    template <typename Answer>
    static Answer nextAnswer(std::deque<std::optional<Answer>>& answers) {
        if (answers.empty()) throw std::logic_error("the host asked for a pick that the test doesn't give");
        const bool brokenOff = !answers.front().has_value();
        Answer answer = brokenOff ? Answer() : std::move(*answers.front());
        answers.pop_front();
        if (brokenOff) throw basic::Error(kEscape, "User input was cancelled");
        return answer;
    }
};
using FakeDrawingPtr = std::shared_ptr<FakeDrawing>;

/// An object that looks into the drawing, which outlives it.
class OfDrawing : public FakeObject {
  public:
    explicit OfDrawing(FakeDrawing& drawing) : drawing_(drawing) {}

  protected:
    FakeDrawing& drawing_;
};

/// A named selection set.
class FakeSelectionSet : public OfDrawing {
  public:
    FakeSelectionSet(FakeDrawing& drawing, std::string name) : OfDrawing(drawing), name(std::move(name)) {}

    std::string name;
    std::vector<FakeEntityPtr> members;

    Variant get(std::string_view member) override {
        if (is(member, "Name")) return Variant(name);
        if (is(member, "Count")) return Variant(static_cast<std::int32_t>(members.size()));
        return FakeObject::get(member);
    }
    Variant call(std::string_view member, Arguments& arguments) override {
        if (is(member, "Item")) return item(argument(arguments, 0).integer());
        if (is(member, "Clear")) {
            members.clear();
        } else if (is(member, "Select")) {
            if (argument(arguments, 0).integer() != 5 || !argument(arguments, 1).isMissing() ||
                !argument(arguments, 2).isMissing())
                throw std::logic_error("only mode 5 without corner points is known");
            select(drawing_.entities, argument(arguments, 3), argument(arguments, 4));
        } else if (is(member, "SelectOnScreen")) {
            select(FakeDrawing::nextAnswer(drawing_.selections), argument(arguments, 0),
                   argument(arguments, 1));
        } else if (is(member, "Delete")) {
            std::erase_if(drawing_.sets, [this](const auto& set) { return set.get() == this; });
        } else {
            throw basic::Error(basic::kNoSuchMember);
        }
        return {};
    }

  private:
    Variant item(std::int32_t index) const {
        if (index < 0 || index >= static_cast<std::int32_t>(members.size()))
            throw basic::Error(basic::kSubscript);
        return Variant(members[index]);
    }
    void select(const std::vector<FakeEntityPtr>& candidates, const Variant& types, const Variant& data) {
        const basic::Shorts& codes = types.shorts();
        const basic::Array& values = data.array();
        for (const FakeEntityPtr& entity : candidates) {
            bool passes = !entity->erased;
            for (std::size_t i = 0; i < codes.size() && passes; ++i)
                passes = matches(*entity, codes[i], values.at(i).text());
            if (passes) members.push_back(entity);
        }
    }
    static bool matches(const FakeEntity& entity, std::int16_t code, std::string_view value) {
        if (code == 2) return basic::equalIgnoringCase(entity.name, value);
        if (code != 100) throw basic::Error(basic::kInvalidCall);
        return basic::equalIgnoringCase(value, "AcDbEntity") ||
               basic::equalIgnoringCase(value, entity.objectName);
    }
};

class FakeSelectionSets : public OfDrawing {
  public:
    using OfDrawing::OfDrawing;

    Variant get(std::string_view member) override {
        if (is(member, "Count")) return Variant(static_cast<std::int32_t>(drawing_.sets.size()));
        throw basic::Error(basic::kNoSuchMember);
    }
    Variant call(std::string_view member, Arguments& arguments) override {
        const Variant& key = argument(arguments, 0);
        if (is(member, "Item")) {
            if (key.isNumber()) {
                const auto index = static_cast<std::size_t>(key.integer());
                if (index >= drawing_.sets.size()) throw basic::Error(basic::kSubscript);
                return Variant(drawing_.sets[index]);
            }
            if (auto set = find(key.text())) return Variant(set);
            throw keyNotFound();
        }
        if (!is(member, "Add")) throw basic::Error(basic::kNoSuchMember);
        if (find(key.text())) throw basic::Error(kRefusedValue, "The named selection set exists");
        drawing_.sets.push_back(std::make_shared<FakeSelectionSet>(drawing_, key.text()));
        return Variant(drawing_.sets.back());
    }

  private:
    std::shared_ptr<FakeSelectionSet> find(std::string_view name) const {
        for (const auto& set : drawing_.sets)
            if (basic::equalIgnoringCase(set->name, name)) return set;
        return nullptr;
    }
};

class FakeModelSpace : public OfDrawing {
  public:
    using OfDrawing::OfDrawing;

    Variant call(std::string_view member, Arguments& arguments) override {
        if (is(member, "AddLine")) {
            const auto line = std::make_shared<FakeLine>(drawing_, pointOf(argument(arguments, 0)),
                                                         pointOf(argument(arguments, 1)));
            drawing_.entities.push_back(line);
            return Variant(line);
        }
        if (!is(member, "InsertBlock")) throw basic::Error(basic::kNoSuchMember);
        const Point point = pointOf(argument(arguments, 0));
        Point scale;
        for (std::size_t i = 0; i < 3; ++i) scale[i] = drawing_.scaleFactor(argument(arguments, 2 + i));
        const double rotation = argument(arguments, 5).number();
        const FakeBlockPtr block = definition(argument(arguments, 1).text());
        const auto reference = drawing_.addReference(block->name, point);
        reference->scale = scale;
        reference->rotation = rotation;
        return Variant(reference);
    }
    void enumerate(const std::function<bool(const Variant&)>& visit) override {
        for (const FakeEntityPtr& entity : drawing_.entities)
            if (!entity->erased && entity->space == Space::Model && !visit(Variant(entity))) return;
    }

  private:
    static Point pointOf(const Variant& value) {
        const basic::Doubles& given = value.doubles();
        return {given.at(0), given.at(1), given.at(2)};
    }
    /// The block of that name; a block file's path brings its block in first.
    FakeBlockPtr definition(const std::string& name) {
        if (auto block = drawing_.findBlock(name)) return block;
        const auto file = drawing_.files.find(name);
        if (file == drawing_.files.end()) throw keyNotFound();
        if (!drawing_.findBlock(file->second->name)) drawing_.blocks.push_back(file->second);
        return file->second;
    }
};

class FakeBlocks : public OfDrawing {
  public:
    using OfDrawing::OfDrawing;

    void enumerate(const std::function<bool(const Variant&)>& visit) override {
        for (const FakeBlockPtr& block : drawing_.blocks)
            if (!visit(Variant(block))) return;
    }
};

class FakeUtility : public OfDrawing {
  public:
    using OfDrawing::OfDrawing;

    Variant call(std::string_view member, Arguments& arguments) override {
        if (is(member, "GetEntity")) return pick(arguments);
        const bool wantsPoint = is(member, "GetPoint");
        if (!wantsPoint && !is(member, "GetAngle")) throw basic::Error(basic::kNoSuchMember);
        drawing_.bases.push_back(arguments.at(0));
        drawing_.prompts.push_back(arguments.at(1).text());
        if (!wantsPoint) return Variant(FakeDrawing::nextAnswer(drawing_.angles));
        const Point point = FakeDrawing::nextAnswer(drawing_.points);
        return Variant(basic::Doubles(point.begin(), point.end()));
    }

  private:
    Variant pick(Arguments& arguments) {
        drawing_.prompts.push_back(arguments.at(2).text());
        const FakeEntityPtr picked = FakeDrawing::nextAnswer(drawing_.picks);
        Point place{};
        if (!drawing_.pickPlaces.empty()) {
            place = drawing_.pickPlaces.front();
            drawing_.pickPlaces.pop_front();
        }
        arguments.at(0) = Variant(picked);
        arguments.at(1) = Variant(basic::Doubles(place.begin(), place.end()));
        return {};
    }
};

class FakeDocument : public FakeObject {
  public:
    explicit FakeDocument(FakeDrawingPtr drawing) : drawing_(std::move(drawing)) {}
    Variant get(std::string_view member) override {
        if (is(member, "ModelSpace")) return Variant(std::make_shared<FakeModelSpace>(*drawing_));
        if (is(member, "Blocks")) return Variant(std::make_shared<FakeBlocks>(*drawing_));
        if (is(member, "Utility")) return Variant(std::make_shared<FakeUtility>(*drawing_));
        if (is(member, "SelectionSets")) return Variant(std::make_shared<FakeSelectionSets>(*drawing_));
        throw basic::Error(basic::kNoSuchMember);
    }

  private:
    FakeDrawingPtr drawing_;
};

/// A drawing with its document, and the short ways in which tests fill it and look into it.
class FakeHost {
  public:
    FakeHost() : drawing_(std::make_shared<FakeDrawing>()) {
        document_ = std::make_shared<FakeDocument>(drawing_);
    }
    const ObjectPtr& document() const { return document_; }
    FakeDrawing& drawing() { return *drawing_; }

    FakeBlock& addBlock(std::string name, FakeBlock::Attributes attributes = {}) {
        drawing_->blocks.push_back(std::make_shared<FakeBlock>(std::move(name), std::move(attributes)));
        return *drawing_->blocks.back();
    }
    /// See FakeDrawing.
    FakeReferencePtr addReference(const std::string& block, Point point = {},
                                  const std::vector<std::string>& texts = {}) {
        return drawing_->addReference(block, point, texts);
    }
    FakeEntityPtr addEntity(std::string objectName) {
        drawing_->entities.push_back(std::make_shared<FakeEntity>(*drawing_, std::move(objectName)));
        return drawing_->entities.back();
    }

    void pick(FakeEntityPtr entity) { drawing_->picks.emplace_back(std::move(entity)); }
    void breakOffPick() { drawing_->picks.emplace_back(std::nullopt); }
    void select(std::vector<FakeEntityPtr> entities) {
        drawing_->selections.emplace_back(std::move(entities));
    }
    void breakOffSelection() { drawing_->selections.emplace_back(std::nullopt); }

    /// The living references of a block, oldest first.
    std::vector<FakeReferencePtr> references(std::string_view block) const {
        auto found = drawing_->living<FakeReference>();
        std::erase_if(found, [block](const auto& reference) { return reference->name != block; });
        return found;
    }
    /// The living lines, oldest first.
    std::vector<FakeLinePtr> lines() const { return drawing_->living<FakeLine>(); }
    std::vector<std::string> setNames() const {
        std::vector<std::string> names;
        for (const auto& set : drawing_->sets) names.push_back(set->name);
        return names;
    }

  private:
    FakeDrawingPtr drawing_;
    ObjectPtr document_;
};

}  // namespace fakes
