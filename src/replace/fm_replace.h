#pragma once

#include "forms/controls.h"
#include "language/dialog.h"

#include <cstdint>
#include <string>

namespace replace {

/// The dialog of the replacement: the block to replace and the zone in which its references are taken, the
/// replacement block, and what the new references don't take over from the old ones.
///
/// For a pick in the drawing it hides itself. It comes back by a modal show within the handler, or, with
/// `Check2` set, by the loop of RunReplaceCommand. A failure in between ends the handler before it comes
/// back.
class fmReplace : public language::Dialog {
  public:
    explicit fmReplace(session::Session& session);

    // In the order of creation, by which the language files count.
    forms::CheckBox Check2{*this, "Check2"};  ///< never visible, 1: to be shown again after it closes
    forms::CheckBox Check1{*this, "Check1"};  ///< never visible, 1: the lists are being refilled
    forms::FileDialog CommonDialog1{*this, "CommonDialog1"};
    forms::Frame Frame2{*this, "Frame2"};
    forms::PictureBox Picture2{*this, "Picture2"};
    forms::CheckBox ChkAttSet{*this, "ChkAttSet"};
    forms::Button BtnAttSet{*this, "BtnAttSet"};
    forms::TextBox TxtBlocReplacer{*this,
                                   "TxtBlocReplacer"};  ///< never visible: the name for the next showing
    forms::TextBox txtZScale{*this, "txtZScale"};
    forms::CheckBox chkZScale{*this, "chkZScale"};
    forms::ComboBox cboVisibility{*this, "cboVisibility", forms::ComboBox::Style::DropDownList};
    forms::TextBox txtYScale{*this, "txtYScale"};
    forms::CheckBox chkYScale{*this, "chkYScale"};
    forms::TextBox txtXScale{*this, "txtXScale"};
    forms::CheckBox chkXScale{*this, "chkXScale"};
    forms::CheckBox chkVisibility{*this, "chkVisibility"};
    forms::TextBox txtRotation{*this, "txtRotation"};
    forms::CheckBox chkRotation{*this, "chkRotation"};
    forms::ComboBox CboBlocReplacer{*this, "CboBlocReplacer"};
    forms::Label Label5{*this, "Label5"};
    forms::Line Line1{*this, "Line1"};
    forms::Label Label1{*this, "Label1"};
    forms::Frame Frame1{*this, "Frame1"};
    forms::PictureBox Picture1{*this, "Picture1"};
    forms::Button BtnSelectName{*this, "BtnSelectName"};
    forms::OptionButton optZoneAll{*this, "optZoneAll"};
    forms::Button BtnSelectZone{*this, "BtnSelectZone"};
    forms::OptionButton optZoneSelection{*this, "optZoneSelection"};
    forms::ListBox lstDestination{*this, "lstDestination"};  ///< in spite of its name, the blocks to replace
    forms::Line Line2{*this, "Line2"};
    forms::Label Label4{*this, "Label4"};
    forms::Label Label3{*this, "Label3"};
    forms::Button BtnClose{*this, "BtnClose"};
    forms::Button BtnReplace{*this, "BtnReplace"};
    forms::Label Label2{*this, "Label2"};
    forms::Label LblNbrSelected{*this, "LblNbrSelected"};

  protected:
    void Form_Initialize() override;

  private:
    // In fm_replace_layout.cpp.
    void layOut();
    void layOutSource();
    void layOutReplacement();
    void layOutParameters();
    void wire();

    // The opening sequence and the lists.
    void FillVisibilityChoices();
    void ResetParameterFields();
    void RefreshBlockLists();
    void EnableDialogControls(bool flag);
    void RefreshAttributeOption();

    // The source block and its zone.
    void lstDestination_Click();
    void optZoneAll_Click();
    void optZoneSelection_Click();
    void BtnSelectZone_Click();
    void BtnSelectName_Click();
    void ApplyReferenceZone();

    // The replacement block and the parameters.
    void CboBlocReplacer_Click();
    void chkRotation_Click();
    void chkVisibility_Click();
    void chkXScale_Click();
    void chkYScale_Click();
    void chkZScale_Click();
    void ToggleParameterField(const forms::CheckBox& check, forms::TextBox& text, const char* defaultText);
    void CheckNumericField(const forms::CheckBox& check, forms::TextBox& text);
    void ChkAttSet_Click();
    void BtnAttSet_Click();

    void BtnReplace_Click();
    void BtnClose_Click();
};

}  // namespace replace
