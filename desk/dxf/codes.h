#pragma once

#include <array>
#include <cstdint>

namespace dxf {

/// What the value of a group is, by its group code, after the DXF reference's table of group code ranges. In
/// an ASCII file all are text; in a binary one the type decides how many bytes the value takes.
enum class ValueType : std::uint8_t {
    String,      ///< text, ended by a zero byte in binary files
    HandleText,  ///< hexadecimal text
    Double,      ///< 64-bit float
    Int16,
    Int32,
    Int64,
    Bool,   ///< one byte
    Chunk,  ///< binary data: hexadecimal text in ASCII files, a length byte and bytes in binary ones
};

inline constexpr int kMinCode = -5;
inline constexpr int kMaxCode = 1071;
inline constexpr int kComment = 999;

namespace detail {
extern const std::array<ValueType, kMaxCode + 1> kValueTypes;
}

inline bool isValidCode(int code) { return code >= kMinCode && code <= kMaxCode; }

/// The type of a group's value; String for codes that the format doesn't know.
inline ValueType valueType(int code) {
    return code >= 0 && code <= kMaxCode ? detail::kValueTypes[static_cast<std::size_t>(code)]
                                         : ValueType::String;
}

/// What a handle in a group says about the object that it names.
enum class HandleRole : std::uint8_t {
    None,         ///< no handle at all
    Own,          ///< the object's own handle: 5 and 105 (in dimension styles 5 is a block name of old)
    Arbitrary,    ///< 320-329, never translated
    SoftPointer,  ///< 330-339, and 1005 in extended data
    HardPointer,  ///< 340-349, 390-399, 480-481
    SoftOwner,    ///< 350-359
    HardOwner,    ///< 360-369
};
HandleRole handleRole(int code);

}  // namespace dxf
