// The look of fmLabels: places in twips, the captions that stand where no language file can be read, and the
// start state of the controls.

#include "labels/fm_labels.h"

namespace labels {

using forms::Twips;

namespace {

constexpr Twips kFieldHeight = 315;
constexpr Twips kButtonHeight = 375;

}  // namespace

fmLabels::fmLabels(session::Session& session)
    : Dialog(session, "fmLabels", "009", "Etiquetage", 100900), ValueCapture(session, *this) {
    layOut();
    layOutRows();
    wire();
}

void fmLabels::layOut() {
    resizeTo(9360 + kFrameWidth, 5685 + kFrameHeight);
    Label1.place(120, 120, 2040, kFieldHeight);
    Label1.setCaption("Nom du bloc à insérer :");
    Combo2.place(2220, 120, 3720, kFieldHeight);
    Combo2.setSorted(true);
    BtnEtiquette.place(6060, 120, 1560, kFieldHeight);
    BtnEtiquette.setCaption("Sélectionner...");
    BtnImport.place(7680, 120, 1560, kFieldHeight);
    BtnImport.setCaption("Parcourir...");

    BtnParametre.place(120, 5160, 1560, kButtonHeight);
    BtnParametre.setCaption("Paramètres");
    BtnParametre.setEnabled(false);
    BtnInserer.place(6060, 5160, 1560, kButtonHeight);
    BtnInserer.setCaption("Insérer");
    BtnInserer.setEnabled(false);
    OKButton.place(7680, 5160, 1560, kButtonHeight);
    OKButton.setCaption("Fermer");
    OKButton.setCancel(true);

    Label2.place(1800, 5220, 4140, 255);
    Label2.setVisible(false);
}

/// The fields of the selected row stand in one line below the list.
void fmLabels::layOutRows() {
    Frame1.place(120, 600, 9120, 4440);
    Frame1.setCaption("Valeurs des attributs");
    ListView1.place(Frame1, 120, 300, 8880, 3180);
    ListView1.setHideSelection(false);
    // The headings are no captions: they are the same in every language.
    for (const char* heading : {"Attribut", "Etiquette", "Valeur", "Mode de détermination"})
        ListView1.columnHeaders().add(heading, 0);

    Picture1.place(Frame1, 60, 3540, 9000, 840);
    Label3.place(Picture1, 60, 60, 3480, 255);
    Label3.setCaption("_");
    Text1.place(Picture1, 60, 360, 3480, kFieldHeight);
    Text1.setEnabled(false);
    Combo1.place(Picture1, 3660, 360, 3480, kFieldHeight);
    Combo1.setText("Combo1");
    Combo1.setEnabled(false);
    BtnAttFormat.place(Picture1, 7260, 360, 480, kFieldHeight);
    BtnAttFormat.setCaption("...");
    BtnAttFormat.setEnabled(false);
}

void fmLabels::wire() {
    Combo2.onChange = [this] { Combo2_Change(); };
    Combo2.onClick = [this] { Combo2_Click(); };
    BtnEtiquette.onClick = [this] { BtnEtiquette_Click(); };
    BtnImport.onClick = [this] { BtnImport_Click(); };
    ListView1.onBeforeLabelEdit = [this](bool& cancel) { ListView1_BeforeLabelEdit(cancel); };
    ListView1.onItemClick = [this](forms::ListItem&) { ListView1_ItemClick(); };
    ListView1.onKeyDown = [this](forms::Key) { ListView1_KeyDown(); };
    Text1.onChange = [this] { Text1_Change(); };
    Combo1.onChange = [this] { Combo1_Change(); };
    Combo1.onClick = [this] { Combo1_Click(); };
    BtnAttFormat.onClick = [this] { BtnAttFormat_Click(); };
    BtnParametre.onClick = [this] { BtnParametre_Click(); };
    BtnInserer.onClick = [this] { BtnInserer_Click(); };
    OKButton.onClick = [this] { OKButton_Click(); };
}

}  // namespace labels
