#pragma once

#include <string>

namespace dxf {

/// Appends a number as a drawing file has it: the shortest text that reads back as the same value, always
/// with a decimal point ("1.0", "0.1", "1.5e+20"); plain decimals where these stay short. Raises kOverflow
/// for what is no finite number.
void appendNumber(std::string& text, double value);
std::string numberText(double value);

/// A handle's hexadecimal text, with capitals and without leading zeros.
std::string handleText(unsigned long long handle);

}  // namespace dxf
