#pragma once

#include "desk/drawing/ids.h"
#include "desk/dxf/encoding.h"

#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

namespace drawing {

/// Names of a drawing as numbers, equal without regard to case. Number 0 is no name.
class NameTable {
  public:
    NameTable() { texts_.emplace_back(); }

    /// The number of a name as a file's bytes have it; the same spelling is decoded only once.
    NameId internRaw(std::string_view raw, const dxf::Encoding& encoding);
    NameId intern(std::string_view text);
    /// The number of a name, kNoName if it was never met.
    NameId find(std::string_view text) const;
    /// The name in the spelling that was met first.
    const std::string& text(NameId id) const { return texts_[id]; }
    std::size_t size() const { return texts_.size(); }

  private:
    std::deque<std::string> texts_;
    std::deque<std::string> spellings_;  ///< owns the keys of byRaw_
    std::unordered_map<std::string_view, NameId> byRaw_;
    std::unordered_map<std::string, NameId> byFolded_;
    std::string_view lastRaw_;  ///< neighbours often share a layer
    NameId lastId_ = kNoName;
};

}  // namespace drawing
