#pragma once

#include "host/object.h"

#include <concepts>

namespace host {

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

}  // namespace host
