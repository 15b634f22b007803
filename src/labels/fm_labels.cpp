#include "labels/fm_labels.h"

#include "basic/error_state.h"
#include "basic/numbers.h"
#include "blocks/block_file.h"
#include "blocks/block_names.h"
#include "blocks/pick.h"
#include "blocks/trial_insertion.h"
#include "labels/fm_att_format.h"
#include "labels/fm_param_ins.h"
#include "labels/insertion_loop.h"
#include "labels/label_table.h"
#include "labels/value_modes.h"
#include "language/language.h"
#include "language/translation.h"
#include "platform/platform.h"

#include <cmath>
#include <optional>

namespace labels {
namespace {

// Messages by their numbers in the language files.
constexpr std::int32_t kPickLabel = 107;
constexpr std::int32_t kValueOf = 126;
constexpr std::int32_t kAttributeFormat = 127;

// Sub-items of a row.
constexpr int kTagItem = 1;
constexpr int kValueItem = 2;
constexpr int kModeItem = 3;

}  // namespace

// What Form_Initialize and BRefresh raise comes out of the dialog's creation.

void fmLabels::Form_Initialize() {
    language::InitForm(session_, *this);
    const forms::Twips width = ListView1.width();
    for (int column = 1; column <= 3; ++column) ListView1.columnHeaders().setWidth(column, width / 7);
    // A third for the mode: the columns don't add up to the list's width.
    ListView1.columnHeaders().setWidth(4, width / 3);
    BRefresh();
}

/// Runs at creation alone: a block that is brought in later stands in the field, not in the list.
void fmLabels::BRefresh() {
    const std::optional<blocks::BlockNames> names = blocks::GetBlockNames(session_);
    if (!names) return;
    Combo2.clear();
    basic::toInt16(names->Count());  // they are counted in 16 bits
    for (const std::string& name : *names) Combo2.addItem(name);
}

void fmLabels::Form_Activate() { BtnAttFormat.setToolTipText(message(kAttributeFormat)); }

void fmLabels::BtnImport_Click() {
    basic::ErrorState errors;  // errors are ignored throughout
    errors.skip([&] { Combo2.setText(""); });
    errors.skip([&] {
        basic::Variant attributes;  // not used: they belong to a deleted reference
        Label2.setCaption(blocks::BrowseBlockFile(session_, CommonDialog1, attributes, ""));
    });
    errors.skip([&] { Combo2.setText(Label2.caption()); });
}

/// The table is filled twice, by the change of the text and then by hand.
void fmLabels::BtnEtiquette_Click() {
    basic::ErrorState errors;  // errors are ignored throughout
    errors.skip([&] { hide(); });
    host::BlockReference reference;
    errors.skip([&] { reference = blocks::PickBlockReference(session_, message(kPickLabel)); });
    if (!reference.isNothing()) {
        errors.skip([&] { Combo2.setText(reference.Name()); });
        errors.skip([&] { Combo2_Click(); });
    }
    errors.skip([&] { showAgain(); });
}

void fmLabels::Combo2_Change() { Combo2_Click(); }

/// A text that is no block empties the rows all the same, while `Label2` keeps the last block that could be
/// read.
void fmLabels::Combo2_Click() {
    basic::ErrorState errors;  // errors are ignored throughout
    if (Combo2.text().empty()) return;
    host::BlockReference trial;
    errors.skip([&] { trial = blocks::InsertTrialReference(session_, Combo2.text()); });
    errors.skip([&] { Label2.setCaption(trial.Name()); });
    host::Attributes attributes{basic::Array{}};
    errors.skip([&] { attributes = trial.GetAttributes(); });
    BtnInserer.setEnabled(true);
    BtnParametre.setEnabled(true);
    ListView1.listItems().clear();
    fillRows(attributes);
    if (ListView1.listItems().count() > 0) {
        ListView1.selectItem(1);
        Combo1.setEnabled(true);
        Text1.setEnabled(true);
    }

    errors.skip([&] {
        auto& parameters = session_.form<fmParamIns>("fmParamIns");
        errors.skip([&] { parameters.Text1.setText(plain(trial.XScaleFactor())); });
        errors.skip([&] { parameters.Text2.setText(plain(trial.YScaleFactor())); });
        errors.skip([&] { parameters.Text3.setText(plain(trial.ZScaleFactor())); });
        // No conversion to degrees: it would divide by four times the arctangent. With the trial's rotation
        // of 0 it makes no difference.
        errors.skip([&] { parameters.Text4.setText(plain(trial.Rotation() * 180 / std::atan(1) * 4)); });
    });
    errors.skip([&] { ShowSelectedItem(); });
    errors.skip([&] { trial.Delete(); });
}

/// The table of modes isn't cleared: below the first row it keeps the modes of the block before, although all
/// rows say that they are manual, until a row is shown.
void fmLabels::fillRows(const host::Attributes& attributes) {
    basic::ErrorState errors;  // errors are ignored throughout
    for (std::size_t i = 0; i < attributes.size(); ++i) {
        const int position = static_cast<int>(i);
        forms::ListItem& row = ListView1.listItems().add("Attribut " + std::to_string(position + 1));
        errors.skip([&] { row.setSubItem(kTagItem, attributes.at(i).TagString()); });
        errors.skip([&] { row.setSubItem(kValueItem, attributes.at(i).TextString()); });
        errors.skip([&] { row.setSubItem(kModeItem, kModeTexts[kManual]); });
        errors.skip([&] { growLabelTable(session_, position); });
    }
}

/// Gives the selected row the mode with its remembered format, which also puts a counter back to its first
/// value. Without a selected row only what needs none happens.
void fmLabels::Combo1_Change() {
    basic::ErrorState errors;  // errors are ignored throughout
    errors.skip([&] { EtatTBox1(); });
    const int mode = Combo1.listIndex();
    const int row = ListView1.hasSelectedItem() ? ListView1.selectedItem().index() - 1 : -1;
    errors.skip([&] { ListView1.selectedItem().setSubItem(kModeItem, Combo1.text()); });
    errors.skip([&] { labelCell(session_, kModeSlot, row) = static_cast<std::int16_t>(mode); });
    for (int column = 0; column < kFormatColumns; ++column) {
        // A typed text is no mode and has no row of formats: the slots stay.
        errors.skip([&] {
            labelCell(session_, static_cast<LabelSlot>(column + 1), row) =
                formatCell(session_, mode, static_cast<FormatColumn>(column));
        });
    }
    errors.skip([&] { session_.form<fmParamIns>("fmParamIns").Option2_Click(); });
}

void fmLabels::Combo1_Click() { Combo1_Change(); }

void fmLabels::BtnAttFormat_Click() {
    basic::ErrorState errors;  // errors are ignored throughout
    errors.skip([&] { hide(); });
    errors.skip([&] {
        auto& dialog = session_.form<fmAttFormat>("fmAttFormat");
        const int mode = Combo1.listIndex();
        const auto format = [&](FormatColumn column) { return formatCell(session_, mode, column); };
        errors.skip([&] { dialog.LabelTag.setCaption(ListView1.selectedItem().subItem(kTagItem)); });
        errors.skip([&] { dialog.LabelMode.setCaption(Combo1.text()); });
        errors.skip([&] { dialog.Text1.setText(format(kPrefixColumn)); });
        errors.skip([&] { dialog.Text2.setText(format(kSuffixColumn)); });
        errors.skip([&] {
            dialog.Combo1.setListIndex(basic::toInt16(basic::leadingNumber(format(kDecimalsColumn))));
        });
        errors.skip([&] { dialog.Text3.setText(format(kValueColumn)); });
        errors.skip([&] { dialog.Text4.setText(format(kStepColumn)); });
        errors.clear();
        errors.skip([&] { dialog.showFieldsOf(mode); });
        errors.skip([&] { language::showOwned(session_, dialog); });
    });
}

// Nothing is guarded from here on, but in the insertion.

void fmLabels::BtnParametre_Click() {
    hide();
    language::showOwned(session_, session_.form("fmParamIns"));
}

void fmLabels::BtnInserer_Click() {
    basic::ErrorState errors;  // errors are ignored throughout
    errors.skip([&] { hide(); });
    errors.skip([&] { InsertLabels(session_, *this, session_.form<fmParamIns>("fmParamIns"), *this); });
    errors.skip([&] { showAgain(); });
}

void fmLabels::EtatTBox1() {
    if (Combo1.listIndex() != kManual) {
        BtnAttFormat.setEnabled(true);
        Text1.setEnabled(false);
    } else {
        BtnAttFormat.setEnabled(false);
        Text1.setEnabled(true);
        Text1.setFocus();  // fails while the dialog is hidden
    }
}

/// A change of the list index takes the row's format anew from its mode, though the row was only looked at.
void fmLabels::ShowSelectedItem() {
    const forms::ListItem& row = ListView1.selectedItem();
    Label3.setCaption(message(kValueOf) + row.text() + " :");
    Text1.setText(row.subItem(kValueItem));
    Combo1.setListIndex(labelMode(session_, row.index() - 1));
}

void fmLabels::Text1_Change() { ListView1.selectedItem().setSubItem(kValueItem, Text1.text()); }

void fmLabels::ListView1_BeforeLabelEdit(bool& cancel) { cancel = true; }

void fmLabels::ListView1_ItemClick() { ShowSelectedItem(); }

/// Before the key moves the selection: with the arrow keys the fields show the row that is being left.
void fmLabels::ListView1_KeyDown() { ShowSelectedItem(); }

void fmLabels::OKButton_Click() { hide(); }

const std::string& fmLabels::manualValue(int row) const {
    return ListView1.listItems().item(row).subItem(kValueItem);
}

const std::string& fmLabels::modeText(int row) const {
    return ListView1.listItems().item(row).subItem(kModeItem);
}

std::string fmLabels::plain(double value) const {
    return basic::toText(value, session_.platform().regional());
}

}  // namespace labels
