#pragma once

#include "desk/drawing/ids.h"
#include "desk/dxf/encoding.h"

#include <array>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace drawing {

/// Names of a drawing as numbers. Each spelling has a number of its own, and a key that it has in common with
/// the spellings that differ from it in case alone. Number 0 is no name.
class NameTable {
  public:
    NameTable();

    /// The number of a name as a file's bytes have it; the same bytes are decoded only once.
    NameId internRaw(std::string_view raw, const dxf::Encoding& encoding);
    NameId intern(std::string_view text);
    /// The key of a name, None if it was never met.
    NameKey find(std::string_view text) const;
    /// The name as it is spelled.
    const std::string& text(NameId id) const { return texts_[id]; }
    NameKey key(NameId id) const { return keys_[id]; }
    std::size_t size() const { return texts_.size(); }

  private:
    std::deque<std::string> texts_;
    std::vector<NameKey> keys_;
    std::deque<std::string> bytes_;  ///< owns the keys of byRaw_
    std::unordered_map<std::string_view, NameId> byRaw_;
    std::unordered_map<std::string_view, NameId> byText_;  ///< looks into texts_
    std::unordered_map<std::string, NameKey> byFolded_;
    struct Met {
        std::string_view raw;  ///< looks into bytes_
        NameId id = kNoName;
    };
    /// Names met lately: layers, tags and blocks come in turns.
    std::array<Met, 64> met_;
};

}  // namespace drawing
