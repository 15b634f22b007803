#pragma once

#include "basic/variant.h"

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

}  // namespace host
