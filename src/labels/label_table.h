#pragma once

#include "basic/variant.h"
#include "session/session.h"

#include <string>

namespace labels {

using session::Session;

/// What the session's `LabelTable` keeps for each attribute of the block: its first index is the slot, its
/// second the attribute's position from 0.
enum LabelSlot : int {
    kModeSlot,      ///< mode index, a 16-bit integer; empty as long as no mode was chosen
    kPrefixSlot,    ///< text
    kSuffixSlot,    ///< text
    kDecimalsSlot,  ///< 0 to 9, as text or 16-bit integer; empty until it is set
    kValueSlot,     ///< the counter's value: text, then a 64-bit float once the counter has run
    kStepSlot,      ///< the counter's step, as text
};

/// The columns of a mode's row in the session's `VTable`, where its format is remembered from one command to
/// the next. Column c feeds slot c + 1.
enum FormatColumn : int { kPrefixColumn, kSuffixColumn, kDecimalsColumn, kValueColumn, kStepColumn };
inline constexpr int kFormatColumns = 5;

/// Empties the table, leaving room for one attribute.
void resetLabelTable(Session& session);
/// Makes room for attributes up to `position`. It never shrinks, and what is there stays.
void growLabelTable(Session& session, int position);
/// A cell by slot and attribute position. Raises kSubscript outside the table.
basic::Variant& labelCell(Session& session, LabelSlot slot, int position);
/// The mode of an attribute, 0 for an empty slot. Raises kSubscript outside the table.
int labelMode(Session& session, int position);

/// A cell of a mode's remembered format. Raises kSubscript outside `VTable`, so for the mode -1 of a text
/// that is no mode.
std::string& formatCell(Session& session, int mode, FormatColumn column);

}  // namespace labels
