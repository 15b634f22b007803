#include "desk/drawing/name_table.h"

#include "basic/text.h"

namespace drawing {

NameTable::NameTable() {
    texts_.emplace_back();
    keys_.push_back(NameKey::None);
}

NameId NameTable::internRaw(std::string_view raw, const dxf::Encoding& encoding) {
    if (raw.empty()) return kNoName;
    const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(raw[at]); };
    const std::size_t place = raw.size() * 5 + byte(0) * 3 + byte(raw.size() - 1) * 7;
    Met& met = met_[place % met_.size()];
    if (met.raw == raw) return met.id;
    auto known = byRaw_.find(raw);
    if (known == byRaw_.end()) {
        const NameId id = intern(encoding.decode(raw));
        known = byRaw_.emplace(bytes_.emplace_back(raw), id).first;
    }
    met = {known->first, known->second};
    return met.id;
}

NameId NameTable::intern(std::string_view text) {
    if (text.empty()) return kNoName;
    const auto known = byText_.find(text);
    if (known != byText_.end()) return known->second;
    const auto id = static_cast<NameId>(texts_.size());
    texts_.emplace_back(text);
    byText_.emplace(texts_.back(), id);
    keys_.push_back(byFolded_.try_emplace(basic::toLower(text), static_cast<NameKey>(id)).first->second);
    return id;
}

NameKey NameTable::find(std::string_view text) const {
    const auto found = byFolded_.find(basic::toLower(text));
    return found == byFolded_.end() ? NameKey::None : found->second;
}

}  // namespace drawing
