#pragma once

#include "basic/error.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace dxf {

using Handle = std::uint64_t;  ///< 0 is no handle

/// A file that isn't what it should be (run-time failure 321 of the automation world).
inline constexpr std::int32_t kInvalidFileFormat = 321;

/// What lenient reading repaired or lived with.
struct Finding {
    std::size_t offset = 0;  ///< where in the file's bytes
    std::size_t line = 0;    ///< the line, from 1; 0 in a binary file and before `Findings::resolve`
    Handle handle = 0;       ///< the object concerned, if it is known
    std::string reason;
};

/// A list of findings. Lines are counted once for all of them, in `resolve`.
class Findings {
  public:
    void add(std::size_t offset, Handle handle, std::string reason) {
        list_.push_back({offset, 0, handle, std::move(reason)});
    }
    /// Puts the findings in the order of the file and finds their lines in one pass over `bytes` (for a
    /// binary file pass `binary`: its findings have no line).
    void resolve(std::string_view bytes, bool binary);

    const std::vector<Finding>& list() const { return list_; }
    bool empty() const { return list_.empty(); }

  private:
    std::vector<Finding> list_;
};

/// One line for a list: "12: handle 2F: reason", "byte 90: reason" in a binary file.
std::string toText(const Finding& finding);

/// What can't be read. The description is "file:line: what"; "file: byte n: what" in a binary file and "file:
/// what" where no place applies. The number is kInvalidFileFormat unless the file itself couldn't be had.
class ReadError : public basic::Error {
  public:
    using basic::Error::Error;
};

/// The line of a byte, from 1.
std::size_t lineOf(std::string_view bytes, std::size_t offset);

/// The first characters of a value for a message, in double quotes, with what isn't printable as "?".
std::string quoted(std::string_view raw);

}  // namespace dxf
