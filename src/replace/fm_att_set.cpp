#include "replace/fm_att_set.h"

#include "basic/error_state.h"
#include "blocks/trial_insertion.h"
#include "language/translation.h"
#include "replace/fm_replace.h"

namespace replace {

fmAttSet::fmAttSet(session::Session& session)
    : Dialog(session, "fmAttSet", "003", "Paramètres de transcription des valeurs d'attributs", 100300) {
    layOut();
    wire();
}

void fmAttSet::layOut() {
    resizeTo(7200 + kFrameWidth, 4620 + kFrameHeight);
    Frame1.place(120, 120, 6960, 3480);
    Frame1.setCaption("Tableau des correspondances");
    ListView1.place(Frame1, 120, 300, 6720, 3060);
    // The headings are no captions: they are the same in every language.
    const forms::Twips half = ListView1.width() / 2 - 50;
    ListView1.columnHeaders().add("Attribut dans le bloc source", half);
    ListView1.columnHeaders().add("Attribut dans le bloc de destination", half);
    ListView1.setHideSelection(false);

    Label3.place(120, 3720, 3360, 255);
    Label3.setCaption("Attribut dans le bloc de destination :");
    Combo2.place(3540, 3675, 3540, 315);
    Combo2.setSorted(true);
    OKButton.place(5580, 4125, 1500, 375);
    OKButton.setCaption("OK");
    OKButton.setDefault(true);

    Label1.place(120, 4185, 2520, 255);
    Label1.setVisible(false);
    Label2.place(2760, 4185, 2520, 255);
    Label2.setVisible(false);
}

void fmAttSet::wire() {
    ListView1.onClick = [this] { ListView1_Click(); };
    ListView1.onItemClick = [this](forms::ListItem&) { ListView1_ItemClick(); };
    ListView1.onBeforeLabelEdit = [this](bool& cancel) { ListView1_BeforeLabelEdit(cancel); };
    Combo2.onChange = [this] { Combo2_Change(); };
    Combo2.onClick = [this] { Combo2_Click(); };
    OKButton.onClick = [this] { OKButton_Click(); };
}

void fmAttSet::Form_Initialize() {
    language::InitForm(session_, *this);
    const forms::Twips half = ListView1.width() / 2 - 50;
    ListView1.columnHeaders().setWidth(1, half);
    ListView1.columnHeaders().setWidth(2, half);
}

// Nothing is guarded: a block that can't be inserted ends this with the first trial reference in the drawing.
void fmAttSet::Form_Load() {
    const auto& dialog = session_.form<fmReplace>("fmReplace");
    Label1.setCaption(dialog.lstDestination.text());
    Label2.setCaption(dialog.CboBlocReplacer.text());
    const host::BlockReference source = blocks::insertTrial(session_, dialog.lstDestination.text());
    const host::BlockReference destination = blocks::insertTrial(session_, dialog.CboBlocReplacer.text());
    const host::Attributes sourceAttributes = source.GetAttributes();
    const host::Attributes destinationAttributes = destination.GetAttributes();

    ListView1.listItems().clear();
    for (std::size_t i = 0; i < sourceAttributes.size(); ++i)
        ListView1.listItems().add(sourceAttributes.at(i).TagString());
    Combo2.clear();
    for (std::size_t i = 0; i < destinationAttributes.size(); ++i)
        Combo2.addItem(destinationAttributes.at(i).TagString());

    source.Delete();
    destination.Delete();
}

void fmAttSet::Form_Activate() {
    const auto& dialog = session_.form<fmReplace>("fmReplace");
    if (Label1.caption() != dialog.lstDestination.text() || Label2.caption() != dialog.CboBlocReplacer.text())
        Form_Load();
}

void fmAttSet::ListView1_Click() {
    basic::ErrorState errors;  // errors are ignored throughout
    errors.skip([&] { Combo2.setText(ListView1.selectedItem().subItem(1)); });
    // An empty or foreign destination, which the list doesn't hold, shows as nothing.
    if (errors.failed()) errors.skip([&] { Combo2.setListIndex(-1); });
    errors.clear();
}

void fmAttSet::ListView1_ItemClick() { ListView1_Click(); }

void fmAttSet::ListView1_BeforeLabelEdit(bool& cancel) {
    cancel = true;
    ListView1_Click();
}

void fmAttSet::Combo2_Change() { ListView1.selectedItem().setSubItem(1, Combo2.text()); }

void fmAttSet::Combo2_Click() { Combo2_Change(); }

void fmAttSet::OKButton_Click() { hide(); }

}  // namespace replace
