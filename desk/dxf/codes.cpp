#include "desk/dxf/codes.h"

namespace dxf {

namespace {

struct CodeRange {
    int first;
    int last;
    ValueType type;
};

// The DXF reference's "group code value types", with the handles told apart from other text. What no range
// names is a string.
constexpr CodeRange kRanges[] = {
    {5, 5, ValueType::HandleText},       {10, 59, ValueType::Double},       {60, 79, ValueType::Int16},
    {90, 99, ValueType::Int32},          {105, 105, ValueType::HandleText}, {110, 149, ValueType::Double},
    {160, 169, ValueType::Int64},        {170, 179, ValueType::Int16},      {210, 239, ValueType::Double},
    {270, 289, ValueType::Int16},        {290, 299, ValueType::Bool},       {310, 319, ValueType::Chunk},
    {320, 369, ValueType::HandleText},   {370, 389, ValueType::Int16},      {390, 399, ValueType::HandleText},
    {400, 409, ValueType::Int16},        {420, 429, ValueType::Int32},      {440, 459, ValueType::Int32},
    {460, 469, ValueType::Double},       {480, 481, ValueType::HandleText}, {1004, 1004, ValueType::Chunk},
    {1005, 1005, ValueType::HandleText}, {1010, 1059, ValueType::Double},   {1060, 1070, ValueType::Int16},
    {1071, 1071, ValueType::Int32},
};

constexpr std::array<ValueType, kMaxCode + 1> makeTable() {
    std::array<ValueType, kMaxCode + 1> table{};
    for (const CodeRange& range : kRanges)
        for (int code = range.first; code <= range.last; ++code)
            table[static_cast<std::size_t>(code)] = range.type;
    return table;
}

}  // namespace

constexpr std::array<ValueType, kMaxCode + 1> detail::kValueTypes = makeTable();

HandleRole handleRole(int code) {
    if (code == 5 || code == 105) return HandleRole::Own;
    if (code >= 320 && code <= 329) return HandleRole::Arbitrary;
    if ((code >= 330 && code <= 339) || code == 1005) return HandleRole::SoftPointer;
    if ((code >= 340 && code <= 349) || (code >= 390 && code <= 399) || code == 480 || code == 481)
        return HandleRole::HardPointer;
    if (code >= 350 && code <= 359) return HandleRole::SoftOwner;
    if (code >= 360 && code <= 369) return HandleRole::HardOwner;
    return HandleRole::None;
}

}  // namespace dxf
