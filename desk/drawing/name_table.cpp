#include "desk/drawing/name_table.h"

#include "basic/text.h"

namespace drawing {

NameId NameTable::internRaw(std::string_view raw, const dxf::Encoding& encoding) {
    if (raw == lastRaw_) return lastId_;
    const auto known = byRaw_.find(raw);
    if (known != byRaw_.end()) {
        lastRaw_ = known->first;
        return lastId_ = known->second;
    }
    const NameId id = intern(encoding.decode(raw));
    lastRaw_ = spellings_.emplace_back(raw);
    byRaw_.emplace(lastRaw_, id);
    return lastId_ = id;
}

NameId NameTable::intern(std::string_view text) {
    if (text.empty()) return kNoName;
    const auto [entry, isNew] =
        byFolded_.try_emplace(basic::toLower(text), static_cast<NameId>(texts_.size()));
    if (isNew) texts_.emplace_back(text);
    return entry->second;
}

NameId NameTable::find(std::string_view text) const {
    const auto found = byFolded_.find(basic::toLower(text));
    return found == byFolded_.end() ? kNoName : found->second;
}

}  // namespace drawing
