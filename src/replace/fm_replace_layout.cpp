// The look of fmReplace: places in twips, the captions that stand where no language file can be read, and the
// start state of the controls.

#include "replace/fm_replace.h"

namespace replace {

using forms::Twips;

namespace {

constexpr Twips kMargin = 60;
constexpr Twips kLabelHeight = 255;
constexpr Twips kFieldHeight = 315;
constexpr Twips kButtonWidth = 1500;
constexpr Twips kButtonHeight = 375;

}  // namespace

fmReplace::fmReplace(session::Session& session)
    : Dialog(session, "fmReplace", "012", "Remplacement de blocs", 101200) {
    layOut();
    wire();
}

void fmReplace::layOut() {
    resizeTo(9360 + kFrameWidth, 5880 + kFrameHeight);
    layOutSource();
    layOutReplacement();
    layOutParameters();

    Label2.place(120, 5430, 3000, kLabelHeight);
    Label2.setCaption("Nombre de blocs à remplacer :");
    LblNbrSelected.place(3180, 5430, 900, kLabelHeight);
    LblNbrSelected.setCaption("0");
    BtnReplace.place(6180, 5370, kButtonWidth, kButtonHeight);
    BtnReplace.setCaption("Remplacer");
    BtnClose.place(7740, 5370, kButtonWidth, kButtonHeight);
    BtnClose.setCaption("Fermer");
    BtnClose.setCancel(true);

    Check1.place(4200, 5430, 255, 255);
    Check1.setVisible(false);
    Check2.place(4500, 5430, 255, 255);
    Check2.setVisible(false);
}

void fmReplace::layOutSource() {
    constexpr Twips kWidth = 3720;
    Frame1.place(120, 120, 3960, 5160);
    Frame1.setCaption("Blocs à remplacer");
    Picture1.place(Frame1, 60, 240, 3840, 4860);

    Label3.place(Picture1, kMargin, 60, kWidth, kLabelHeight);
    Label3.setCaption("Nom de bloc");
    lstDestination.place(Picture1, kMargin, 330, kWidth, 2790);
    BtnSelectName.place(Picture1, 2280, 3180, kButtonWidth, kButtonHeight);
    BtnSelectName.setCaption("Sélectionner");

    Line2.setContainer(Picture1);
    Line2.setEnds(kMargin, 3660, kMargin + kWidth, 3660);
    Label4.place(Picture1, kMargin, 3750, kWidth, kLabelHeight);
    Label4.setCaption("Zone de référence");
    optZoneAll.place(Picture1, kMargin, 4050, kWidth, 285);
    optZoneAll.setCaption("Tout le dessin");
    optZoneAll.setValue(true);
    optZoneSelection.place(Picture1, kMargin, 4410, 2160, 285);
    optZoneSelection.setCaption("Sélection");
    BtnSelectZone.place(Picture1, 2280, 4365, kButtonWidth, kButtonHeight);
    BtnSelectZone.setCaption("Sélectionner");
    BtnSelectZone.setEnabled(false);
}

void fmReplace::layOutReplacement() {
    constexpr Twips kWidth = 4800;
    Frame2.place(4200, 120, 5040, 5160);
    Frame2.setCaption("Bloc de remplacement");
    Picture2.place(Frame2, 60, 240, 4920, 4860);

    Label5.place(Picture2, kMargin, 60, kWidth, kLabelHeight);
    Label5.setCaption("Nom du bloc");
    CboBlocReplacer.place(Picture2, kMargin, 330, kWidth, kFieldHeight);
    Line1.setContainer(Picture2);
    Line1.setEnds(kMargin, 780, kMargin + kWidth, 780);

    ChkAttSet.place(Picture2, kMargin, 3405, kWidth, kFieldHeight);
    ChkAttSet.setCaption("Transcription de valeurs d'attributs");
    BtnAttSet.place(Picture2, 3360, 3795, kButtonWidth, kButtonHeight);
    BtnAttSet.setCaption("Parametrer");
    TxtBlocReplacer.place(Picture2, kMargin, 3825, 2400, kFieldHeight);
    TxtBlocReplacer.setVisible(false);
}

void fmReplace::layOutParameters() {
    Label1.place(Picture2, kMargin, 870, 4800, kLabelHeight);
    Label1.setCaption("Paramètres d'insertion ( Cocher pour modifier )");

    Twips top = 1200;
    const auto addRow = [&](forms::CheckBox& check, const char* caption, forms::Control& field) {
        check.place(Picture2, kMargin, top, 2400, kFieldHeight);
        check.setCaption(caption);
        field.place(Picture2, 2520, top, 2340, kFieldHeight);
        field.setEnabled(false);
        top += 420;
    };
    addRow(chkRotation, "Rotation", txtRotation);
    addRow(chkVisibility, "Visibilité", cboVisibility);
    addRow(chkXScale, "Echelle en X", txtXScale);
    addRow(chkYScale, "Echelle en Y", txtYScale);
    addRow(chkZScale, "Echelle en Z", txtZScale);
    for (forms::TextBox* text : {&txtRotation, &txtXScale, &txtYScale, &txtZScale})
        text->setText("Conserver");
}

void fmReplace::wire() {
    lstDestination.onClick = [this] { lstDestination_Click(); };
    optZoneAll.onClick = [this] { optZoneAll_Click(); };
    optZoneSelection.onClick = [this] { optZoneSelection_Click(); };
    BtnSelectZone.onClick = [this] { BtnSelectZone_Click(); };
    BtnSelectName.onClick = [this] { BtnSelectName_Click(); };
    CboBlocReplacer.onClick = [this] { CboBlocReplacer_Click(); };
    chkRotation.onClick = [this] { chkRotation_Click(); };
    chkVisibility.onClick = [this] { chkVisibility_Click(); };
    chkXScale.onClick = [this] { chkXScale_Click(); };
    chkYScale.onClick = [this] { chkYScale_Click(); };
    chkZScale.onClick = [this] { chkZScale_Click(); };
    txtRotation.onChange = [this] { CheckNumericField(chkRotation, txtRotation); };
    txtXScale.onChange = [this] { CheckNumericField(chkXScale, txtXScale); };
    txtYScale.onChange = [this] { CheckNumericField(chkYScale, txtYScale); };
    txtZScale.onChange = [this] { CheckNumericField(chkZScale, txtZScale); };
    ChkAttSet.onClick = [this] { ChkAttSet_Click(); };
    BtnAttSet.onClick = [this] { BtnAttSet_Click(); };
    BtnReplace.onClick = [this] { BtnReplace_Click(); };
    BtnClose.onClick = [this] { BtnClose_Click(); };
}

}  // namespace replace
