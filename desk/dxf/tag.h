#pragma once

#include "desk/dxf/codes.h"
#include "desk/dxf/findings.h"
#include "desk/dxf/format.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace dxf {

/// One group of a drawing: a code and a value that is decoded on request. It looks into the bytes that it was
/// read from and into their Format, so it lives no longer than they do.
struct Tag {
    int code = 0;
    std::string_view
        raw;  ///< the value's bytes: a line without its end, or the binary value without end or length
    std::size_t begin = 0;  ///< offset of the group's first byte
    std::size_t end = 0;    ///< offset behind its last one
    const Format* format = nullptr;

    /// Whether this is the structure group (code 0) of that name.
    bool starts(std::string_view name) const { return code == 0 && raw == name; }

    /// The value as UTF-8 text, whatever its type (numbers and binary data as an ASCII file would have them).
    std::string text() const;
    /// The same without an allocation where the bytes are the text already: a view of the file or of
    /// `scratch`.
    std::string_view text(std::string& scratch) const;

    /// The value as a number; blanks around it are passed over. Raises kTypeMismatch for a text that is none.
    double number() const;
    /// The value as a whole number. Raises kTypeMismatch for a text that is none, kOverflow for a number with
    /// a fraction or beyond 64 bits.
    std::int64_t integer() const;
    /// The value as a handle; 0 for a text that is none.
    Handle handle() const;

    /// The value, or `fallback` for a text that is no number (an ASCII "3.0" counts as the integer 3).
    double numberOr(double fallback) const;
    std::int64_t integerOr(std::int64_t fallback) const;
};

std::optional<double> parseNumber(std::string_view text);
std::optional<std::int64_t> parseInteger(std::string_view text);
/// Hexadecimal digits as a handle; 0 for any other text.
Handle parseHandle(std::string_view text);

}  // namespace dxf
