#pragma once

#include "forms/controls.h"
#include "language/dialog.h"
#include "replace/transcription.h"

namespace replace {

/// The table of attributes: which attribute of the source block feeds which of the destination block. Its
/// list is the table's only store, and each choice goes into it at once. The dialog lives as long as the
/// component, so the table of one command is still there in the next.
class fmAttSet : public language::Dialog, public TranscriptionTable {
  public:
    explicit fmAttSet(session::Session& session);

    // In the order of creation, by which the language files count.
    forms::ListView ListView1{*this, "ListView1"};  ///< source tags in the block's order, destination tags
    forms::Frame Frame1{*this, "Frame1"};
    forms::ComboBox Combo2{*this, "Combo2", forms::ComboBox::Style::DropDownList};
    forms::Label Label3{*this, "Label3"};
    forms::Button OKButton{*this, "OKButton"};
    forms::Label Label1{*this, "Label1"};  ///< never visible: source block that the table was built for
    forms::Label Label2{*this, "Label2"};  ///< never visible: destination block

    int rowCount() const override { return ListView1.listItems().count(); }
    const std::string& destination(int row) const override {
        return ListView1.listItems().item(row).subItem(1);
    }

  protected:
    void Form_Initialize() override;
    /// Builds the table for the two blocks of fmReplace by trial insertions, all destinations empty.
    void Form_Load() override;
    /// Builds it anew if the blocks are others than those it was built for.
    void Form_Activate() override;

  private:
    void layOut();
    void wire();

    void ListView1_Click();
    void ListView1_ItemClick();
    void ListView1_BeforeLabelEdit(bool& cancel);
    void Combo2_Change();
    void Combo2_Click();
    void OKButton_Click();
};

}  // namespace replace
