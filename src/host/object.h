#pragma once

#include "basic/variant.h"

#include <array>
#include <concepts>
#include <functional>
#include <memory>
#include <string_view>
#include <vector>

namespace host {

using basic::Variant;
/// Arguments of a call. They go by reference: an out-argument comes back in its place. An argument left out
/// is `basic::Missing`, at the end also simply absent.
using Arguments = std::vector<Variant>;

/// A late-bound object of the host: its members are reached by name at run time, names matched without regard
/// to case. Failures are raised as basic::Error; a missing member is kNoSuchMember.
class Object : public basic::Referable {
  public:
    virtual Variant get(std::string_view member) = 0;
    virtual void set(std::string_view member, const Variant& value) = 0;
    virtual Variant call(std::string_view member, Arguments& arguments) = 0;

    /// Walks a collection in its own order until `visit` returns false. An object that is no collection
    /// raises kNoSuchMember.
    virtual void enumerate(const std::function<bool(const Variant&)>& visit) = 0;

    /// Call with arguments of which none comes back.
    Variant invoke(std::string_view member, Arguments arguments = {}) { return call(member, arguments); }
};

using ObjectPtr = std::shared_ptr<Object>;

/// The object that a variant holds. Raises kObjectNotSet for nothing or an empty variant, kObjectRequired for
/// any other value.
ObjectPtr asObject(const Variant& value);

/// Base of the typed views of host objects: a view names the members that the logic uses and hands them on by
/// name at run time, so it fits any object and a missing member shows at the call. A view is a value; several
/// may look at one object. Every member raises kObjectNotSet on a view of nothing, else what the host raises.
class ObjectView {
  public:
    /// A view of nothing.
    ObjectView() = default;
    template <std::derived_from<Object> T>
    explicit ObjectView(std::shared_ptr<T> object) : object_(std::move(object)) {}
    /// The object in `value`, or nothing. Raises kObjectRequired for a value of another kind.
    explicit ObjectView(const Variant& value);

    bool isNothing() const { return object_ == nullptr; }
    const ObjectPtr& object() const { return object_; }
    Variant variant() const { return Variant(object_); }

  protected:
    Variant get(std::string_view member) const { return target().get(member); }
    void set(std::string_view member, const Variant& value) const { target().set(member, value); }
    Variant invoke(std::string_view member, Arguments arguments = {}) const {
        return target().call(member, arguments);
    }
    Object& target() const;

    /// Walks a collection in its own order, each element as an object, until `visit` returns false.
    void enumerate(const std::function<bool(const ObjectPtr&)>& visit) const;

  private:
    ObjectPtr object_;
};

/// A host's Boolean; a number counts as true when it isn't 0. Raises kTypeMismatch for other values.
bool toBoolean(const Variant& value);

/// X, Y, Z in drawing units.
using Point = std::array<double, 3>;

Variant toVariant(const Point& point);
/// The point in `value`, an array of floats or of variants with numbers; what follows the third element is
/// ignored. Raises kSubscript for fewer elements, kTypeMismatch for another value.
Point toPoint(const Variant& value);

}  // namespace host
