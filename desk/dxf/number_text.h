#pragma once

#include <cstddef>
#include <string>

namespace dxf {

/// Room for any number's text.
inline constexpr std::size_t kLongestNumber = 48;
/// Writes a number as a drawing file has it: the shortest text that reads back as the same value, always with
/// a decimal point ("1.0", "0.1", "1.5e+20"); plain decimals where these stay short. Returns its end. Raises
/// kOverflow for what is no finite number.
char* writeNumber(char* to, double value);
std::string numberText(double value);

/// Writes a handle's hexadecimal text, with capitals and without leading zeros, of up to 16 characters.
/// Returns its end.
char* writeHandle(char* to, unsigned long long handle);
std::string handleText(unsigned long long handle);

}  // namespace dxf
