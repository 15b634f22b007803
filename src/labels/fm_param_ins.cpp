#include "labels/fm_param_ins.h"

#include "forms/screen.h"
#include "labels/fm_labels.h"
#include "labels/leader_rule.h"
#include "language/translation.h"

namespace labels {

using forms::Twips;

fmParamIns::fmParamIns(session::Session& session)
    : Dialog(session, "fmParamIns", "010", "Paramètre d'insertion", 101000) {
    layOut();
    layOutLeader();
    wire();
}

void fmParamIns::layOut() {
    constexpr Twips kWidth = 4920;
    constexpr Twips kLabelWidth = 3000;
    constexpr Twips kFieldLeft = 3300;
    constexpr Twips kFieldWidth = 1440;
    constexpr Twips kFieldHeight = 315;
    resizeTo(5280, 6090);

    Frame1.place(120, 120, kWidth, 1680);
    Frame1.setCaption("Echelle");
    Twips top = 360;
    const auto addRow = [&](forms::Label& label, const char* caption, forms::TextBox& field) {
        label.place(Frame1, 180, top, kLabelWidth, kFieldHeight);
        label.setCaption(caption);
        field.place(Frame1, kFieldLeft, top, kFieldWidth, kFieldHeight);
        top += 420;
    };
    addRow(Label1, "Echelle longitudinale EX", Text1);
    addRow(Label2, "Echelle transversale EY", Text2);
    addRow(Label3, "Echelle verticale EZ", Text3);

    Frame2.place(120, 1920, kWidth, 1260);
    Frame2.setCaption("Rotation");
    Picture1.place(Frame2, 60, 240, kWidth - 120, 960);
    CheckBox1.place(Picture1, 120, 90, kLabelWidth, 285);
    CheckBox1.setCaption("Spécifier à l'écran");
    Label4.place(Picture1, 120, 510, kLabelWidth, kFieldHeight);
    Label4.setCaption("Angle de rotation (°)");
    Text4.place(Picture1, kFieldLeft - 60, 510, kFieldWidth, kFieldHeight);

    OKButton.place(3825, 5160, 1215, 375);
    OKButton.setCaption("OK");
    OKButton.setDefault(true);
}

/// A leader line from a new point, unless the drafter says otherwise.
void fmParamIns::layOutLeader() {
    Frame3.place(120, 3300, 4920, 1680);
    Frame3.setCaption("Ligne de repérage");
    CheckBox2.place(Frame3, 180, 300, 4500, 285);
    CheckBox2.setCaption("Tracer une ligne de repérage");
    CheckBox2.setValue(1);
    Picture2.place(Frame3, 420, 660, 4380, 900);
    Option1.place(Picture2, 60, 60, 4260, 285);
    Option1.setCaption("A partir d'un nouveau point");
    Option1.setValue(true);
    Option2.place(Picture2, 60, 480, 4260, 285);
    Option2.setCaption("A partir du point de sélection monoclic");
}

void fmParamIns::wire() {
    OKButton.onClick = [this] { OKButton_Click(); };
    CheckBox1.onClick = [this] { CheckBox1_Click(); };
    CheckBox2.onClick = [this] { CheckBox2_Click(); };
    Option1.onClick = [this] { Option1_Click(); };
    Option2.onClick = [this] { Option2_Click(); };
}

// Nothing is guarded in this dialog.

void fmParamIns::Form_Initialize() { language::InitForm(session_, *this); }

/// The fields aren't tested: the insertion reads them, and takes what isn't a number as 0.
void fmParamIns::OKButton_Click() {
    hide();
    language::showOwned(session_, session_.form("fmLabels"));
}

void fmParamIns::CheckBox1_Click() { Text4.setEnabled(CheckBox1.value() == 0); }

/// An option that is on stays on while both are disabled.
void fmParamIns::CheckBox2_Click() {
    Option1.setEnabled(CheckBox2.value() == 1);
    Option2.setEnabled(CheckBox2.value() == 1);
}

void fmParamIns::Option1_Click() { Option2_Click(); }

/// Whether a leader is drawn at all doesn't count.
void fmParamIns::Option2_Click() {
    if (!Option2.value()) return;
    const int rows = session_.form<fmLabels>("fmLabels").ListView1.listItems().count();
    if (leaderMayStartAtPick(session_, rows)) return;
    Option2.setValue(false);
    Option1.setValue(true);
    // The same in every language; the blank in "n 'est" and the second "avec" belong to the text.
    using Box = forms::MessageDialog;
    session_.screen().messageBox(
        {"L'option 'ligne de repérage à partir du point de sélection'\r\n"
         "n 'est pas valable avec plus d'une valeur Auto ni avec\r\n"
         "avec des valeurs Auto polyclic.\r\n" +
             session_.AppName + " a corrigé le choix.",
         session_.AppName + " : Erreur", Box::Buttons::Ok, Box::Icon::Exclamation});
}

}  // namespace labels
