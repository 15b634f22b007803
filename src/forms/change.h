#pragma once

namespace forms {

/// What of a form or a control changed, in the words of a face that draws it. A change of a container's
/// Visible, Enabled or Bounds counts for what it holds and is told for the container alone.
enum class Change {
    Caption,    ///< form, and every control with a caption
    Icon,       ///< form
    Pointer,    ///< form
    Bounds,     ///< place and size of the form, or of a control in its container
    Enabled,    ///< the control's own property
    Visible,    ///< the control's own property
    ToolTip,    ///< the tool tip's text
    Focus,      ///< told to the control that lost the focus, then to the one that has it
    Value,      ///< check box, option
    Text,       ///< text box, field of an editable combo
    Entries,    ///< entries of a list or a combo
    Selection,  ///< current entry of a list or a combo, selected row of a list view and whether it stays
                ///< drawn
    Columns,    ///< headings and widths of a list view
    Rows,       ///< rows of a list view, their texts and sub-items
};

/// A set of changes, for a face that gathers them and draws once.
class Changes {
  public:
    void add(Change change) { bits_ |= bit(change); }
    bool has(Change change) const { return (bits_ & bit(change)) != 0; }
    bool any() const { return bits_ != 0; }
    /// Everything, for the first drawing.
    static Changes all() {
        Changes changes;
        changes.bits_ = ~0u;
        return changes;
    }

  private:
    static unsigned bit(Change change) { return 1u << static_cast<unsigned>(change); }
    unsigned bits_ = 0;
};

}  // namespace forms
