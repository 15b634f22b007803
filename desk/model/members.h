#pragma once

#include "host/object.h"

#include <cstdint>
#include <initializer_list>
#include <string_view>
#include <vector>

namespace model {

using basic::Variant;
using host::Arguments;

class Automation;

/// One member of an object: a property has `get`, perhaps `set`; a method has `call`.
struct Member {
    std::string_view name;
    Variant (*get)(Automation&) = nullptr;
    void (*set)(Automation&, const Variant&) = nullptr;
    Variant (*call)(Automation&, Arguments&) = nullptr;
};

/// The members of a class of objects by name without regard to case, those of its base class among them.
class MemberTable {
  public:
    explicit MemberTable(std::initializer_list<Member> members, const MemberTable* base = nullptr);
    /// Null if there is no such member.
    const Member* find(std::string_view name) const;

  private:
    std::vector<Member> members_;
    std::vector<std::uint8_t> slots_;  ///< open addressing: index + 1 of a member, 0 is free
    const MemberTable* base_;
};

/// A late-bound object that answers from its table. As in automation, a property can be read by a call
/// without arguments and a method without arguments by a get. A member that the table lacks raises
/// kNoSuchMember, as does setting what can only be read.
class Automation : public host::Object, public std::enable_shared_from_this<Automation> {
  public:
    Variant get(std::string_view member) override;
    void set(std::string_view member, const Variant& value) override;
    Variant call(std::string_view member, Arguments& arguments) override;
    void enumerate(const std::function<bool(const Variant&)>& visit) override;

  protected:
    virtual const MemberTable& members() const = 0;
};

// Rows of a table from member functions: property<&T::name>("Name"), property<&T::x, &T::setX>("X"),
// method<&T::item>("Item").

template <typename>
struct MemberClass;
template <typename Result, typename Class, typename... Parameters>
struct MemberClass<Result (Class::*)(Parameters...)> {
    using Type = Class;
};
template <typename Result, typename Class, typename... Parameters>
struct MemberClass<Result (Class::*)(Parameters...) const> {
    using Type = Class;
};
template <auto Function>
using ClassOf = typename MemberClass<decltype(Function)>::Type;

template <auto Getter>
constexpr Member property(std::string_view name) {
    return {name,
            [](Automation& object) -> Variant { return (static_cast<ClassOf<Getter>&>(object).*Getter)(); }};
}
template <auto Getter, auto Setter>
constexpr Member property(std::string_view name) {
    Member row = property<Getter>(name);
    row.set = [](Automation& object, const Variant& value) {
        (static_cast<ClassOf<Setter>&>(object).*Setter)(value);
    };
    return row;
}
/// The function takes the arguments and gives a value.
template <auto Function>
constexpr Member method(std::string_view name) {
    return {name, nullptr, nullptr, [](Automation& object, Arguments& arguments) -> Variant {
                return (static_cast<ClassOf<Function>&>(object).*Function)(arguments);
            }};
}

}  // namespace model
