// The look of fmReInsert: places in twips, the captions that stand where no language file can be read, and
// the start state of the controls. The resize rule goes on from the places here.

#include "extract/fm_re_insert.h"

namespace extract {

using forms::Twips;

namespace {

constexpr int kLeastWidth = 9885;
constexpr int kLeastHeight = 7170;
/// Row of `VTable` that remembers the window.
constexpr int kWindowRow = 21;

constexpr Twips kLabelHeight = 255;
constexpr Twips kFieldHeight = 315;
constexpr Twips kButtonHeight = 375;

}  // namespace

fmReInsert::fmReInsert(session::Session& session)
    : Dialog(session, "fmReInsert", "011", "Réinsertion des blocs", 101100), window_(session, kWindowRow) {
    layOut();
    wire();
}

void fmReInsert::layOut() {
    setResizable(true);
    resizeTo(kLeastWidth, kLeastHeight);
    setLeastSize(kLeastWidth, kLeastHeight);
    setFirstFocus(Combo1);
    layOutMapping();

    Frame2.place(3390, 180, 6375, 5655);
    Frame2.setCaption("Données d'insertion : ''");
    ListView2.place(Frame2, 120, 240, 6135, 5295);

    layOutBottom();
}

void fmReInsert::layOutMapping() {
    Frame1.place(120, 180, 3150, 5655);
    Frame1.setCaption("Attributs de ''");
    ListView1.place(Frame1, 120, 240, 2910, 4815);
    // The headings are no captions: they are the same in every language.
    ListView1.columnHeaders().add("Paramètre", 1305);
    ListView1.columnHeaders().add("Colonne-valeurs", 1545);
    LblVal.place(Frame1, 120, 5160, 720, kLabelHeight);
    LblVal.setCaption("Valeur");
    ComboBox1.place(Frame1, 870, 5160, 2160, kFieldHeight);
}

void fmReInsert::layOutBottom() {
    Label1.place(120, 6180, 1110, kLabelHeight);
    Label1.setCaption("Nom du bloc");
    Combo1.place(1245, 6180, 1515, kFieldHeight);
    Combo1.setSorted(true);
    TxtName.place(1245, 6600, 1515, kFieldHeight);
    TxtName.setVisible(false);
    BtnBloc.place(2820, 6120, 1980, kButtonHeight);
    BtnBloc.setCaption("Sélectionner un bloc");
    BtnBloc.setVisible(false);
    BtnData.place(2820, 6120, 1980, kButtonHeight);
    BtnData.setCaption("Données d'insertion");
    Check1.place(4860, 6060, 1860, 495);  // a caption of two lines
    Check1.setCaption("Ajouter un trait de repérage");
    Check1.setEnabled(false);
    BtnInsert.place(6780, 6120, 1020, kButtonHeight);
    BtnInsert.setCaption("Insérer");
    BtnInsert.setEnabled(false);
    BtnClose.place(7860, 6120, 1905, kButtonHeight);
    BtnClose.setCaption("Fermer");
    BtnClose.setCancel(true);
}

void fmReInsert::wire() {
    Combo1.onClick = [this] { Combo1_Click(); };
    BtnBloc.onClick = [this] { BtnBloc_Click(); };
    ListView1.onItemClick = [this](forms::ListItem&) { ListView1_ItemClick(); };
    ListView1.onBeforeLabelEdit = [this](bool& cancel) { ListView1_BeforeLabelEdit(cancel); };
    ComboBox1.onChange = [this] { ComboBox1_Change(); };
    ComboBox1.onClick = [this] { ComboBox1_Click(); };
    BtnData.onClick = [this] { BtnData_Click(); };
    BtnInsert.onClick = [this] { BtnInsert_Click(); };
    BtnClose.onClick = [this] { BtnClose_Click(); };
}

/// A size put back to the least one moves nothing: the controls stay where the last larger size put them.
/// `Frame1` and what it holds keep their width: only the data side grows.
void fmReInsert::Form_Resize() {
    const auto dH = static_cast<Twips>(excess(height(), kLeastHeight));
    const auto dW = static_cast<Twips>(excess(width(), kLeastWidth));
    window_.keepPlace(*this);
    if (dH > 0) {
        Frame1.setHeight(dH + 5655);
        Frame2.setHeight(Frame1.height());
        ListView1.setHeight(dH + 4815);
        ListView2.setHeight(dH + 5295);
        ComboBox1.setTop(dH + 5160);
        LblVal.setTop(dH + 5160);
        Label1.setTop(dH + 6180);
        Combo1.setTop(dH + 6180);
        BtnBloc.setTop(dH + 6120);
        for (forms::Button* button : {&BtnData, &BtnInsert, &BtnClose}) button->setTop(BtnBloc.top());
        Check1.setTop(dH + 6060);
        window_.keepHeight(*this);
    } else {
        setHeight(kLeastHeight);
    }
    if (dW > 0) {
        Frame2.setWidth(dW + 6375);
        ListView2.setWidth(dW + 6135);
        BtnClose.setLeft(dW + 7860);
        window_.keepWidth(*this);
    } else {
        setWidth(kLeastWidth);
    }
}

}  // namespace extract
