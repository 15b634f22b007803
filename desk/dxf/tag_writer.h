#pragma once

#include "desk/dxf/tag.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace dxf {

/// Appends groups to bytes in a drawing's own format, ASCII or binary. The value is written as the type that
/// the group code has, so integer(40, 1) writes "1.0".
class TagWriter {
  public:
    /// Both must outlive the writer.
    TagWriter(const Format& format, std::string& bytes) : format_(format), bytes_(bytes) {}

    /// A text from UTF-8, encoded for the file.
    void text(int code, std::string_view utf8);
    /// Plain ASCII that needs no encoding: entity types, flags in braces, names of ours.
    void plain(int code, std::string_view ascii) { rawText(code, ascii); }
    /// The value's bytes in the file's encoding, as another group of the same drawing had them.
    void rawText(int code, std::string_view raw);
    void number(int code, double value);
    /// Raises kOverflow where the value is beyond the type of the group code in a binary file.
    void integer(int code, std::int64_t value);
    void handle(int code, Handle value);
    /// Groups `code`, `code` + 10 and `code` + 20.
    void point(int code, double x, double y, double z);
    void point(int code, double x, double y);
    /// Group 100, in formats that have it (R13 on).
    void subclass(std::string_view marker);
    /// Groups of a drawing of the same format, byte for byte.
    void raw(std::string_view groups) { bytes_.append(groups); }
    /// A group of any drawing, converted to this one's format: the same bytes where the formats agree. Raises
    /// kTypeMismatch for a number that can't be read.
    void copy(const Tag& tag);

    const Format& format() const { return format_; }
    std::string& bytes() { return bytes_; }

  private:
    void code(int code);
    void endText();
    void chunk(int code, std::string_view data);

    const Format& format_;
    std::string& bytes_;
};

}  // namespace dxf
