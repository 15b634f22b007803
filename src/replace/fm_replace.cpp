#include "replace/fm_replace.h"

#include "basic/error_state.h"
#include "basic/numbers.h"
#include "blocks/block_file.h"
#include "blocks/block_names.h"
#include "blocks/filter.h"
#include "blocks/pick.h"
#include "blocks/trial_insertion.h"
#include "forms/screen.h"
#include "language/language.h"
#include "language/translation.h"
#include "platform/platform.h"
#include "replace/block_list.h"
#include "replace/dialog_fields.h"
#include "replace/messages.h"

#include <optional>

namespace replace {

using Box = forms::MessageDialog;

void fmReplace::Form_Initialize() {
    basic::ErrorState errors;  // errors are ignored throughout
    errors.skip([&] { language::InitForm(session_, *this); });
    errors.skip([&] { FillVisibilityChoices(); });
    errors.skip([&] { ResetParameterFields(); });
    errors.skip([&] { RefreshBlockLists(); });
    errors.skip([&] { RefreshAttributeOption(); });
    errors.skip([&] { BtnSelectZone.setEnabled(optZoneSelection.value()); });
    errors.skip([&] { lstDestination.setSelected(0, true); });
}

void fmReplace::FillVisibilityChoices() {
    cboVisibility.clear();
    cboVisibility.addItem(message(kOn));
    cboVisibility.addItem(message(kOff));
    cboVisibility.addItem(message(kUnchanged));
}

void fmReplace::ResetParameterFields() {
    txtRotation.setText(message(kUnchanged));
    cboVisibility.setListIndex(kVisibilityUnchanged);
    txtXScale.setText(message(kUnchanged));
    txtYScale.setText(message(kUnchanged));
    txtZScale.setText(message(kUnchanged));
    optZoneAll.setValue(true);
}

void fmReplace::RefreshBlockLists() {
    try {
        Check1.setValue(1);
        const std::optional<blocks::BlockNames> inserted = blocks::GetInsertedBlockNames(session_);
        const std::optional<blocks::BlockNames> all = blocks::GetBlockNames(session_);
        if (inserted && all) {
            EnableDialogControls(true);
            FillBlockList(CboBlocReplacer, *all, "<<< " + message(kSelect), message(kBrowse) + " >>>");
            FillBlockList(lstDestination, *inserted);
            Check1.setValue(0);
            return;
        }
        session_.screen().messageBox(
            {message(kNoReferences), message(kBoxTitle), Box::Buttons::Ok, Box::Icon::Exclamation});
        EnableDialogControls(false);  // Check1 stays 1
    } catch (const basic::Error& error) {
        session_.screen().messageBox(
            {"The following error has occurred trying to replace a block: " + error.description(), "",
             Box::Buttons::Ok, Box::Icon::None});
        Check1.setValue(0);
    }
}

void fmReplace::EnableDialogControls(bool flag) {
    basic::ErrorState errors;  // errors are ignored throughout, as of controls that can't be disabled
    for (forms::Control* control : controls()) errors.skip([&] { control->setEnabled(flag); });
    errors.skip([&] { BtnClose.setEnabled(true); });
    // Each field follows its check box again.
    errors.skip([&] { chkRotation_Click(); });
    errors.skip([&] { chkVisibility_Click(); });
    errors.skip([&] { chkXScale_Click(); });
    errors.skip([&] { chkYScale_Click(); });
    errors.skip([&] { chkZScale_Click(); });
}

/// Offers the transcription when source and replacement both have attributes, found by trial insertions.
void fmReplace::RefreshAttributeOption() {
    basic::ErrorState errors;  // errors are ignored throughout
    const int remembered = ChkAttSet.value();
    errors.skip([&] { ChkAttSet.setEnabled(false); });
    errors.skip([&] { ChkAttSet.setValue(0); });
    errors.skip([&] { BtnAttSet.setEnabled(false); });
    if (lstDestination.selCount() != 1) return;

    host::BlockReference source;
    host::BlockReference replacement;
    errors.skip([&] { source = blocks::insertTrial(session_, lstDestination.text()); });
    errors.skip([&] { replacement = blocks::insertTrial(session_, CboBlocReplacer.text()); });
    const bool both = !source.isNothing() && !replacement.isNothing();
    if (both && errors.test([&] {
            const bool sourceHas = source.hasAttributes();
            return replacement.hasAttributes() && sourceHas;
        })) {
        errors.skip([&] { ChkAttSet.setEnabled(true); });
        errors.skip([&] { ChkAttSet.setValue(remembered); });
        if (remembered == 1) errors.skip([&] { BtnAttSet.setEnabled(true); });
    }
    errors.skip([&] { source.Delete(); });
    errors.skip([&] { replacement.Delete(); });
}

// Nothing is guarded from here on: the first failure ends the handler, with the dialog as it is by then.

/// Each change of the source block comes through here and puts the zone back to the whole drawing.
void fmReplace::lstDestination_Click() {
    RefreshAttributeOption();
    optZoneAll.setValue(true);
    ApplyReferenceZone();
}

void fmReplace::optZoneAll_Click() {
    BtnSelectZone.setEnabled(optZoneSelection.value());
    ApplyReferenceZone();
}

void fmReplace::optZoneSelection_Click() {
    BtnSelectZone.setEnabled(optZoneSelection.value());
    if (optZoneSelection.value()) ApplyReferenceZone();
}

/// With the option off so far, turning it on selects on screen already, and the zone is applied once more.
void fmReplace::BtnSelectZone_Click() {
    optZoneSelection.setValue(true);
    ApplyReferenceZone();
}

/// A pick that was broken off gives nothing, whose name can't be read: the dialog doesn't come back.
void fmReplace::BtnSelectName_Click() {
    hide();
    const std::string name = blocks::PickBlockReference(session_, message(kPickSource)).Name();
    for (int i = 0; i < lstDestination.listCount(); ++i)
        if (lstDestination.list(i) == name) lstDestination.setSelected(i, true);
    showAgain();
}

void fmReplace::ApplyReferenceZone() {
    const host::SelectionFilter filter = blocks::nameFilter(blocks::kAnyEntity, lstDestination.text());
    const host::SelectionSet set(session_.ReplaceSelectionSet);
    if (optZoneSelection.value()) {
        hide();
        set.Clear();
        set.SelectOnScreen(filter);
        LblNbrSelected.setCaption(std::to_string(set.Count()));
        showAgain();
    } else {
        set.Clear();
        set.Select(host::kSelectAll, filter);
        LblNbrSelected.setCaption(std::to_string(set.Count()));
    }
}

/// The two command entries leave the dialog hidden with `Check2` set: RunReplaceCommand shows it again, also
/// when the pick fails here.
void fmReplace::CboBlocReplacer_Click() {
    RefreshAttributeOption();
    const int command = CboBlocReplacer.listIndex();
    if (Check1.value() == 1 || (command != 0 && command != 1)) return;
    hide();
    Check2.setValue(1);
    if (command == 0) {
        TxtBlocReplacer.setText(blocks::PickBlockReference(session_, message(kPickReplacement)).Name());
        return;
    }
    basic::Variant attributes;  // not used: they belong to a deleted reference
    CboBlocReplacer.setText(blocks::BrowseBlockFile(session_, CommonDialog1, attributes, ""));
    TxtBlocReplacer.setText(CboBlocReplacer.text());
    RefreshBlockLists();
}

void fmReplace::chkRotation_Click() { ToggleParameterField(chkRotation, txtRotation, "0"); }

void fmReplace::chkXScale_Click() { ToggleParameterField(chkXScale, txtXScale, "1"); }

void fmReplace::chkYScale_Click() { ToggleParameterField(chkYScale, txtYScale, "1"); }

void fmReplace::chkZScale_Click() { ToggleParameterField(chkZScale, txtZScale, "1"); }

/// The list goes to its first entry before the focus is asked for, which fails while the dialog is hidden.
void fmReplace::chkVisibility_Click() {
    cboVisibility.setEnabled(chkVisibility.value() != 0);
    if (chkVisibility.value() == 0) {
        cboVisibility.setEnabled(false);
        cboVisibility.setListIndex(kVisibilityUnchanged);
    } else if (chkVisibility.value() == 1) {
        cboVisibility.setEnabled(true);
        cboVisibility.setListIndex(kVisibilityOn);
        cboVisibility.setFocus();
    }
}

/// A text comes back to its default at each tick. While the dialog is hidden the focus fails before that, so
/// a text typed before stays.
void fmReplace::ToggleParameterField(const forms::CheckBox& check, forms::TextBox& text,
                                     const char* defaultText) {
    if (check.value() == 0) {
        text.setEnabled(false);
        text.setText(message(kUnchanged));
    } else if (check.value() == 1) {
        text.setEnabled(true);
        text.setFocus();
        text.setText(defaultText);
    }
}

/// Tests at each change, so an empty field or a lone minus sign brings the message too; the text stays.
void fmReplace::CheckNumericField(const forms::CheckBox& check, forms::TextBox& text) {
    if (check.value() != 1 || basic::isNumeric(text.text(), session_.platform().regional())) return;
    session_.screen().messageBox(
        {message(kNotNumeric), session_.AppTitle, Box::Buttons::Ok, Box::Icon::Exclamation});
    text.setFocus();
}

void fmReplace::ChkAttSet_Click() { BtnAttSet.setEnabled(ChkAttSet.value() == 1); }

void fmReplace::BtnAttSet_Click() { language::showOwned(session_, session_.form("fmAttSet")); }

void fmReplace::BtnReplace_Click() { ReplaceBlocks(session_, DialogFields(session_, *this)); }

void fmReplace::BtnClose_Click() { hide(); }

}  // namespace replace
