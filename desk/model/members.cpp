#include "desk/model/members.h"

#include "basic/border.h"
#include "basic/text.h"

#include <bit>

namespace model {

namespace {

basic::Error noSuchMember(std::string_view member) {
    return {basic::kNoSuchMember,
            "Object doesn't support this property or method: '" + std::string(member) + "'"};
}

/// Sizes and a few letters tell the members of a class apart; what is left is compared.
std::size_t hashOf(std::string_view name) {
    const auto small = [&](std::size_t at) { return static_cast<unsigned char>(name[at]) | 0x20u; };
    if (name.empty()) return 0;
    return name.size() * 5 + small(0) * 3 + small(name.size() / 2) + small(name.size() - 1) * 7;
}

}  // namespace

MemberTable::MemberTable(std::initializer_list<Member> members, const MemberTable* base)
    : members_(members), slots_(std::bit_ceil(members.size() * 2 + 2)), base_(base) {
    for (std::size_t i = 0; i < members_.size(); ++i) {
        std::size_t slot = hashOf(members_[i].name) & (slots_.size() - 1);
        while (slots_[slot] != 0) slot = (slot + 1) & (slots_.size() - 1);
        slots_[slot] = static_cast<std::uint8_t>(i + 1);
    }
}

const Member* MemberTable::find(std::string_view name) const {
    const std::size_t hash = hashOf(name);
    for (const MemberTable* table = this; table != nullptr; table = table->base_) {
        const std::size_t mask = table->slots_.size() - 1;
        for (std::size_t slot = hash & mask; table->slots_[slot] != 0; slot = (slot + 1) & mask) {
            const Member& member = table->members_[table->slots_[slot] - 1];
            if (basic::NameEqual{}(member.name, name)) return &member;
        }
    }
    return nullptr;
}

Variant Automation::get(std::string_view name) {
    const Member* member = members().find(name);
    if (member == nullptr) throw noSuchMember(name);
    return basic::acrossBorder([&] {
        if (member->get != nullptr) return member->get(*this);
        Arguments none;
        return member->call(*this, none);
    });
}

void Automation::set(std::string_view name, const Variant& value) {
    const Member* member = members().find(name);
    if (member == nullptr || member->set == nullptr) throw noSuchMember(name);
    basic::acrossBorder([&] { member->set(*this, value); });
}

Variant Automation::call(std::string_view name, Arguments& arguments) {
    const Member* member = members().find(name);
    if (member == nullptr) throw noSuchMember(name);
    return basic::acrossBorder([&] {
        if (member->call != nullptr) return member->call(*this, arguments);
        if (!arguments.empty()) throw noSuchMember(name);
        return member->get(*this);
    });
}

void Automation::enumerate(const std::function<bool(const Variant&)>&) { throw noSuchMember("_NewEnum"); }

}  // namespace model
