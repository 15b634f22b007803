#include "labels/fm_att_format.h"

#include "labels/fm_labels.h"
#include "labels/label_table.h"
#include "labels/value_modes.h"
#include "language/translation.h"

#include <string>

namespace labels {

using forms::Twips;

fmAttFormat::fmAttFormat(session::Session& session)
    : Dialog(session, "fmAttFormat", "002", "Format de l'attribut", 100200) {
    layOut();
    layOutFields();
    wire();
}

void fmAttFormat::layOut() {
    resizeTo(6360, 3240);
    Label1.place(120, 120, 2160, 255);
    Label1.setCaption("Attribut 1 :");
    LabelTag.place(2340, 120, 2340, 255);
    LabelTag.setCaption("Tag");
    Label2.place(120, 420, 2160, 255);
    Label2.setCaption("Mode de détermination :");
    LabelMode.place(2340, 420, 2340, 255);
    LabelMode.setCaption("Longueur Auto Monoclic");
    // Beside the frame, since the dialog's height changes with the mode; the fields come first for the
    // keyboard.
    setTabOrder({&Text1, &Text2, &Combo1, &Text3, &Text4});
    OKButton.place(4920, 120, 1215, 375);
    OKButton.setCaption("OK");
    OKButton.setDefault(true);
    CancelButton.place(4920, 600, 1215, 375);
    CancelButton.setCaption("Annuler");
    CancelButton.setCancel(true);
}

/// The third row lies below the two rows of the shortest frame's need, the fourth beyond that frame's edge.
void fmAttFormat::layOutFields() {
    Frame1.place(120, 780, 4560, 1935);
    Frame1.setCaption("Valeur");
    Twips top = 360;
    const auto addRow = [&](forms::Label& label, const char* caption, forms::Control& field) {
        label.place(Frame1, 120, top, 2160, 315);
        label.setCaption(caption);
        field.place(Frame1, 2340, top, 2100, 315);
        top += 420;
    };
    addRow(Label4, "Préfixe", Text1);
    addRow(Label5, "Suffixe", Text2);
    addRow(Label6, "Nombre de décimaux", Combo1);
    Text3.place(Frame1, Combo1.left(), Combo1.top(), Combo1.width(), Combo1.height());
    Text3.setVisible(false);
    addRow(Label7, "Pas d'incrémentation", Text4);
    Label7.setVisible(false);
    Text4.setVisible(false);
}

void fmAttFormat::wire() {
    Combo1.onChange = [this] { Combo1_Change(); };
    OKButton.onClick = [this] { OKButton_Click(); };
    CancelButton.onClick = [this] { CancelButton_Click(); };
}

void fmAttFormat::showFieldsOf(int mode) {
    const bool isCounter = mode == kCounter;
    const bool isShort = mode == kObjectLayer || mode == kObjectColor;
    Combo1.setVisible(!isCounter && !isShort);
    Text3.setVisible(isCounter);
    Label6.setVisible(!isShort);
    if (!isShort) {  // the short frame cuts the fourth row off, whatever its state
        Label6.setCaption(isCounter ? "Valeur initiale" : "Nombre de décimaux");
        Label7.setVisible(isCounter);
        Text4.setVisible(isCounter);
    }
    Frame1.setHeight(isShort ? 1515 : isCounter ? 2235 : 1935);
    setHeight(isShort ? 2820 : isCounter ? 3540 : 3240);
}

// Nothing is guarded in this dialog.

void fmAttFormat::Form_Initialize() { language::InitForm(session_, *this); }

/// A choice from the list raises no change: only a typed mask reaches Text3, and by it the remembered format.
void fmAttFormat::Combo1_Change() { Text3.setText(std::to_string(Combo1.listIndex())); }

/// All fields are taken as they stand, the hidden ones too, and none is tested.
void fmAttFormat::OKButton_Click() {
    const auto& labels = session_.form<fmLabels>("fmLabels");
    const int row = labels.ListView1.selectedItem().index() - 1;
    labelCell(session_, kPrefixSlot, row) = Text1.text();
    labelCell(session_, kSuffixSlot, row) = Text2.text();
    labelCell(session_, kDecimalsSlot, row) = static_cast<std::int16_t>(Combo1.listIndex());
    labelCell(session_, kValueSlot, row) = Text3.text();
    labelCell(session_, kStepSlot, row) = Text4.text();

    const int mode = labels.Combo1.listIndex();
    formatCell(session_, mode, kPrefixColumn) = Text1.text();
    formatCell(session_, mode, kSuffixColumn) = Text2.text();
    formatCell(session_, mode, kDecimalsColumn) = std::to_string(Combo1.listIndex());
    formatCell(session_, mode, kValueColumn) = Text3.text();
    formatCell(session_, mode, kStepColumn) = Text4.text();
    backToLabels();
}

void fmAttFormat::CancelButton_Click() { backToLabels(); }

void fmAttFormat::backToLabels() {
    hide();
    language::showOwned(session_, session_.form("fmLabels"));
}

}  // namespace labels
