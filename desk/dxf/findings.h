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

/// What lenient reading did about a fault of a file.
enum class Remedy : std::uint8_t {
    Kept,      ///< it stays as it is
    Repaired,  ///< it is taken as it was meant
    LeftOut,   ///< it isn't used; its bytes stay in the file
};

/// A kind of finding. Its code is stable: users and scripts go by it, and one that goes leaves a gap.
struct FindingKind {
    std::string_view code;
    Remedy remedy;
};
namespace finding {
inline constexpr FindingKind kVersion{"K1", Remedy::Kept};
inline constexpr FindingKind kCodePage{"K2", Remedy::Kept};
inline constexpr FindingKind kGroupCode{"K3", Remedy::Kept};
inline constexpr FindingKind kSecondSection{"K4", Remedy::Kept};
inline constexpr FindingKind kMissingSection{"K5", Remedy::Kept};
inline constexpr FindingKind kNoBlockRecord{"K6", Remedy::Kept};
inline constexpr FindingKind kMissingBlock{"K7", Remedy::Kept};
inline constexpr FindingKind kTakenHandle{"K8", Remedy::Kept};
inline constexpr FindingKind kNoSectionEnd{"R1", Remedy::Repaired};
inline constexpr FindingKind kNoFileEnd{"R2", Remedy::Repaired};
inline constexpr FindingKind kNoPartsEnd{"R3", Remedy::Repaired};
inline constexpr FindingKind kNoBlockEnd{"R4", Remedy::Repaired};
inline constexpr FindingKind kLowSeed{"R5", Remedy::Repaired};
inline constexpr FindingKind kStrayGroups{"L1", Remedy::LeftOut};
inline constexpr FindingKind kStrayPart{"L2", Remedy::LeftOut};
inline constexpr FindingKind kStrayBlockEnd{"L3", Remedy::LeftOut};
inline constexpr FindingKind kSecondRecord{"L4", Remedy::LeftOut};
inline constexpr FindingKind kSecondDefinition{"L5", Remedy::LeftOut};
inline constexpr FindingKind kBrokenOff{"L6", Remedy::LeftOut};
inline constexpr FindingKind kCutOff{"L7", Remedy::LeftOut};
}  // namespace finding

/// What lenient reading repaired or lived with.
struct Finding {
    std::size_t offset = 0;  ///< where in the file's bytes
    std::size_t line = 0;    ///< the line, from 1; 0 in a binary file and before `Findings::resolve`
    Handle handle = 0;       ///< the object concerned, if it is known
    FindingKind kind;
    std::string reason;
};

/// A list of findings. Lines are counted once for all of them, in `resolve`.
class Findings {
  public:
    void add(std::size_t offset, Handle handle, FindingKind kind, std::string reason) {
        list_.push_back({offset, 0, handle, kind, std::move(reason)});
    }
    /// Puts the findings in the order of the file and finds their lines in one pass over `bytes` (for a
    /// binary file pass `binary`: its findings have no line).
    void resolve(std::string_view bytes, bool binary);

    const std::vector<Finding>& list() const { return list_; }
    bool empty() const { return list_.empty(); }

  private:
    std::vector<Finding> list_;
};

/// One line for a list: "K8 12: handle 2F: reason", "R2 byte 90: reason" in a binary file.
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
