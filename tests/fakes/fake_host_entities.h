#pragma once

#include "basic/numbers.h"
#include "basic/text.h"
#include "host/object.h"

#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// The entities of the drawing in memory that stands in the host's place. Tests read and write their fields
// directly; the logic reaches the same fields by member name.

namespace fakes {

using basic::Variant;
using host::Arguments;
using host::ObjectPtr;

/// Numbers that only this host raises, apart from the common ones of basic/error.h.
enum HostErrorNumber : std::int32_t {
    kEscape = -2147352567,       ///< the user broke off a pick
    kWasErased = -2145386420,    ///< a member of an erased object
    kKeyNotFound = -2145386476,  ///< no entry, block or file of that name
    kRefusedValue = -2145386493  ///< a value that the property doesn't take
};

inline basic::Error keyNotFound() { return {kKeyNotFound, "Key not found"}; }

/// Base of the host's objects: a member that a class doesn't know is missing.
class FakeObject : public host::Object {
  public:
    Variant get(std::string_view) override { throw basic::Error(basic::kNoSuchMember); }
    void set(std::string_view, const Variant&) override { throw basic::Error(basic::kNoSuchMember); }
    Variant call(std::string_view, Arguments&) override { throw basic::Error(basic::kNoSuchMember); }
    void enumerate(const std::function<bool(const Variant&)>&) override {
        throw basic::Error(basic::kNoSuchMember);
    }

  protected:
    static bool is(std::string_view member, std::string_view name) {
        return basic::NameEqual{}(member, name);
    }
    static const Variant& argument(const Arguments& arguments, std::size_t index) {
        static const Variant missing{basic::Missing{}};
        return index < arguments.size() ? arguments[index] : missing;
    }
};

/// What entities share of their drawing.
struct DrawingState {
    basic::Regional regional = basic::Regional::english();  ///< under which a text given for a number is read
    int updates = 0;                                        ///< calls of `Update`

    /// A scale factor as the host takes it: any number but 0.
    double scaleFactor(const Variant& value) const {
        const double factor = basic::toDouble(value, regional);
        if (factor == 0) throw basic::Error(kRefusedValue, "Invalid input");
        return factor;
    }
};

using Point = std::array<double, 3>;

enum class Space { Model, Paper };

/// Any entity: the members that all kinds have. The drawing outlives it.
class FakeEntity : public FakeObject {
  public:
    FakeEntity(DrawingState& drawing, std::string objectName)
        : objectName(std::move(objectName)), drawing_(drawing) {}

    std::string objectName;
    std::string name;  ///< what group code 2 carries: a reference's block name, else empty
    std::string layer = "0";
    std::int32_t color = 256;
    Space space = Space::Model;
    bool erased = false;
    std::map<std::string, double> measures;  ///< what the entity has of "Length", "Area" and the like

    Variant get(std::string_view member) override {
        requireAlive();
        for (const auto& [measure, value] : measures)
            if (is(member, measure)) return Variant(value);
        if (is(member, "ObjectName")) return Variant(objectName);
        if (is(member, "Layer")) return Variant(layer);
        if (is(member, "Color")) return Variant(color);
        return FakeObject::get(member);
    }
    Variant call(std::string_view member, Arguments&) override {
        requireAlive();
        if (is(member, "Update")) {
            ++drawing_.updates;
        } else if (is(member, "Delete")) {
            erased = true;
        } else {
            throw basic::Error(basic::kNoSuchMember);
        }
        return {};
    }

  protected:
    void requireAlive() const {
        if (erased) throw basic::Error(kWasErased, "Object was erased");
    }
    DrawingState& drawing_;
};

/// An attribute reference. It dies with the reference that carries it.
class FakeAttribute : public FakeObject {
  public:
    FakeAttribute(std::string tag, std::string text, std::weak_ptr<FakeEntity> owner)
        : tag(std::move(tag)), text(std::move(text)), owner_(std::move(owner)) {}

    std::string tag;
    std::string text;

    Variant get(std::string_view member) override {
        requireAlive();
        if (is(member, "TagString")) return Variant(tag);
        if (is(member, "TextString")) return Variant(text);
        throw basic::Error(basic::kNoSuchMember);
    }
    void set(std::string_view member, const Variant& value) override {
        requireAlive();
        if (!is(member, "TextString")) throw basic::Error(basic::kNoSuchMember);
        text = value.text();
    }

  private:
    void requireAlive() const {
        const auto owner = owner_.lock();
        if (owner == nullptr || owner->erased) throw basic::Error(kWasErased, "Object was erased");
    }
    std::weak_ptr<FakeEntity> owner_;
};

/// A block reference.
class FakeReference : public FakeEntity {
  public:
    FakeReference(DrawingState& drawing, std::string blockName) : FakeEntity(drawing, "AcDbBlockReference") {
        name = std::move(blockName);
    }

    Point point{};
    std::array<double, 3> scale{1, 1, 1};
    double rotation = 0;
    bool visible = true;
    std::vector<std::shared_ptr<FakeAttribute>> attributes;

    /// The text of the first attribute of that tag; "(none)" without one.
    std::string text(std::string_view tag) const {
        for (const auto& attribute : attributes)
            if (attribute->tag == tag) return attribute->text;
        return "(none)";
    }

    Variant get(std::string_view member) override {
        requireAlive();
        if (is(member, "InsertionPoint")) return Variant(basic::Doubles(point.begin(), point.end()));
        if (const int axis = scaleAxis(member); axis >= 0) return Variant(scale[axis]);
        if (is(member, "Rotation")) return Variant(rotation);
        if (is(member, "Visible")) return Variant(visible);
        if (is(member, "Name")) return Variant(name);
        if (is(member, "hasAttributes")) return Variant(!attributes.empty());
        return FakeEntity::get(member);
    }
    void set(std::string_view member, const Variant& value) override {
        requireAlive();
        if (const int axis = scaleAxis(member); axis >= 0) {
            scale[axis] = drawing_.scaleFactor(value);
        } else if (is(member, "Rotation")) {
            rotation = basic::toDouble(value, drawing_.regional);
        } else if (is(member, "Visible")) {
            visible = value.boolean();
        } else if (is(member, "InsertionPoint")) {
            const basic::Doubles& given = value.doubles();
            for (std::size_t i = 0; i < 3; ++i) point[i] = given.at(i);
        } else {
            throw basic::Error(basic::kNoSuchMember);
        }
    }
    Variant call(std::string_view member, Arguments& arguments) override {
        if (!is(member, "GetAttributes")) return FakeEntity::call(member, arguments);
        requireAlive();
        return Variant(basic::Array(attributes.begin(), attributes.end()));
    }

  private:
    static int scaleAxis(std::string_view member) {
        constexpr std::array<std::string_view, 3> kNames{"XScaleFactor", "YScaleFactor", "ZScaleFactor"};
        for (int axis = 0; axis < 3; ++axis)
            if (is(member, kNames[axis])) return axis;
        return -1;
    }
};

/// A line.
class FakeLine : public FakeEntity {
  public:
    FakeLine(DrawingState& drawing, Point start, Point end)
        : FakeEntity(drawing, "AcDbLine"), start(start), end(end) {}

    Point start;
    Point end;
};

using FakeEntityPtr = std::shared_ptr<FakeEntity>;
using FakeLinePtr = std::shared_ptr<FakeLine>;
using FakeReferencePtr = std::shared_ptr<FakeReference>;

}  // namespace fakes
