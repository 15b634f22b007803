#include "desk/dxf/number_memory.h"

#include <bit>

namespace dxf {

void NumberMemory::write(TagWriter& writer, int code, double value) {
    if (writer.format().binary || valueType(code) != ValueType::Double) return writer.number(code, value);
    const auto bits = std::bit_cast<std::uint64_t>(value);
    Known& known = known_[bits * 0x9E3779B97F4A7C15u >> 60];
    if (known.size == 0 || known.value != bits) {
        known.size = 0;
        known.size = static_cast<std::uint8_t>(writeNumber(known.text, value) - known.text);
        known.value = bits;
    }
    writer.rawText(code, {known.text, known.size});
}

}  // namespace dxf
