#include "labels/label_table.h"

#include "basic/numbers.h"
#include "platform/platform.h"

namespace labels {
namespace {

constexpr std::size_t kSlots = 6;

}  // namespace

void resetLabelTable(Session& session) { session.LabelTable.assign(kSlots, std::vector<basic::Variant>(1)); }

void growLabelTable(Session& session, int position) {
    for (std::vector<basic::Variant>& slot : session.LabelTable)
        if (slot.size() <= static_cast<std::size_t>(position))
            slot.resize(static_cast<std::size_t>(position) + 1);
}

basic::Variant& labelCell(Session& session, LabelSlot slot, int position) {
    auto& table = session.LabelTable;
    const auto row = static_cast<std::size_t>(slot);
    const auto column = static_cast<std::size_t>(position);
    if (row >= table.size() || position < 0 || column >= table[row].size())
        throw basic::Error(basic::kSubscript);
    return table[row][column];
}

int labelMode(Session& session, int position) {
    const basic::Variant& mode = labelCell(session, kModeSlot, position);
    return basic::toInt16(basic::toDouble(mode, session.platform().regional()));
}

std::string& formatCell(Session& session, int mode, FormatColumn column) {
    if (mode < 0 || mode >= Session::kTableRows) throw basic::Error(basic::kSubscript);
    return session.VTable[static_cast<std::size_t>(mode)][static_cast<std::size_t>(column)];
}

}  // namespace labels
