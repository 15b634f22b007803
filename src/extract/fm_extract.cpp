#include "extract/fm_extract.h"

#include "basic/error_state.h"
#include "blocks/pick.h"
#include "extract/block_data_file.h"
#include "extract/fm_vn_message.h"
#include "extract/messages.h"
#include "extract/selection_set.h"
#include "forms/screen.h"
#include "language/translation.h"
#include "platform/platform.h"

namespace extract {
namespace {

constexpr int kLeastWidth = 8625;
constexpr int kLeastHeight = 6975;
/// Row of `VTable` that remembers the window.
constexpr int kWindowRow = 22;

}  // namespace

fmExtract::fmExtract(session::Session& session)
    : Dialog(session, "fmExtract", "006", "Extraction des données des blocs", 100600),
      window_(session, kWindowRow) {
    layOut();
    wire();
}

void fmExtract::layOut() {
    setResizable(true);
    resizeTo(kLeastWidth, kLeastHeight);
    setLeastSize(kLeastWidth, kLeastHeight);
    setFirstFocus(BtnNew);
    Label0.place(285, 195, 1245, 255);
    Label0.setCaption("Nom du bloc :");
    Label1.place(1530, 195, 6975, 255);
    Frame2.place(285, 540, 8055, 5295);
    Frame2.setCaption("Données extraites");
    ListView2.place(Frame2, 120, 240, 7815, 4935);

    forms::Twips left = 3120;
    const auto addButton = [&](forms::Button& button, const char* caption) {
        button.place(left, 6000, 1260, 375);
        button.setCaption(caption);
        left += 1320;
    };
    addButton(BtnNew, "Nouveau");
    addButton(BtnSave, "Enregistrer");
    addButton(BtnErase, "Effacer");
    addButton(BtnClose, "Fermer");
    BtnClose.setCancel(true);

    CheckBox1.place(285, 6060, 1500, 255);
    CheckBox1.setCaption("CheckBox1");
    CheckBox1.setValue(1);
    CheckBox1.setVisible(false);
}

void fmExtract::wire() {
    BtnNew.onClick = [this] { BtnNew_Click(); };
    BtnSave.onClick = [this] { BtnSave_Click(); };
    BtnErase.onClick = [this] { BtnErase_Click(); };
    BtnClose.onClick = [this] { BtnClose_Click(); };
}

void fmExtract::Form_Initialize() {
    language::InitForm(session_, *this);
    window_.apply(*this);
}

void fmExtract::Form_Load() { Form_Resize(); }

/// A size put back to the least one moves nothing: the controls stay where the last larger size put them.
void fmExtract::Form_Resize() {
    const auto dH = static_cast<forms::Twips>(excess(height(), kLeastHeight));
    const auto dW = static_cast<forms::Twips>(excess(width(), kLeastWidth));
    window_.keepPlace(*this);
    if (dH > 0) {
        Frame2.setHeight(dH + 5295);
        ListView2.setHeight(dH + 4935);
        BtnNew.setTop(dH + 6000);
        for (forms::Button* button : {&BtnSave, &BtnErase, &BtnClose}) button->setTop(BtnNew.top());
        window_.keepHeight(*this);
    } else {
        setHeight(kLeastHeight);
    }
    if (dW > 0) {
        Label1.setWidth(dW + 6975);
        Frame2.setWidth(dW + 8055);
        ListView2.setWidth(dW + 7815);
        BtnNew.setLeft(dW + 3120);
        BtnSave.setLeft(dW + 4440);
        BtnErase.setLeft(dW + 5760);
        BtnClose.setLeft(dW + 7080);
        window_.keepWidth(*this);
    } else {
        setWidth(kLeastWidth);
    }
}

/// From the first question of fmVnMessage on nothing is guarded: a failure, Escape in the zone included, ends
/// the handler with the dialog hidden and the table as it is by then.
void fmExtract::BtnNew_Click() {
    SkipAtFirst regime;
    hide();
    const host::SelectionSet set = firstSelectionSet(session_, regime.errors());
    const host::BlockReference model = pickModel(regime);
    if (!model.isNothing()) {
        blocks::SelectBlockReferencesOnScreen(set, model.Name());
        addRows(ListView2, set, model, session_.platform().regional());
        CheckBox1.setValue(0);  // unsaved, even without any row
    }
    showAgain();
}

host::BlockReference fmExtract::pickModel(SkipAtFirst& regime) {
    for (;;) {
        host::BlockReference model;
        regime.run([&] { model = blocks::PickBlockReference(session_, message(kPickModel)); });
        if (model.isNothing()) return {};
        regime.run([&] { Label1.setCaption(model.Name()); });
        ListView2.listItems().clear();
        ListView2.columnHeaders().clear();
        addColumns(ListView2, model, regime);
        regime.stopSkipping();

        const std::string choice = askHowToGoOn(model.Name());
        if (choice == "2") return {};
        if (choice != "0") return model;  // whatever else stands there, as after the frame's close box
    }
}

std::string fmExtract::askHowToGoOn(const std::string& name) {
    auto& question = session_.form<fmVnMessage>("fmVnMessage");
    question.Label1.setCaption(message(kPicked) + name + "'");
    language::showOwned(session_, question);
    return question.Text1.text();
}

/// The table counts as saved in any case, also when the file couldn't be opened or written. A dialog that is
/// cancelled keeps the path of an earlier save, and the file is written again.
void fmExtract::BtnSave_Click() {
    basic::ErrorState errors;  // errors are ignored throughout
    errors.skip([&] { hide(); });
    errors.skip([&] { CommonDialog1.setFilter(kBlockDataFilter); });
    errors.skip([&] { CommonDialog1.setFlags(kHideReadOnly); });
    errors.skip([&] { CommonDialog1.showSave(session_.screen()); });
    if (!CommonDialog1.fileName().empty()) {
        writeBlockData(CommonDialog1.fileName(), Label1.caption(), ListView2);
        errors.skip([&] { CheckBox1.setValue(1); });
    }
    errors.skip([&] { showAgain(); });
}

/// `CheckBox1` stays: an unsaved table that is emptied still raises the question at the close.
void fmExtract::BtnErase_Click() {
    ListView2.columnHeaders().clear();
    ListView2.listItems().clear();
    Label1.setCaption("");
}

/// The save shows the dialog again: this handler goes on only when a second close has ended that show.
void fmExtract::BtnClose_Click() {
    using Box = forms::MessageDialog;
    if (CheckBox1.value() == 0) {
        const Box question{message(kNotSaved) + "\r\n" + message(kSaveNow), session_.AppTitle,
                           Box::Buttons::YesNo, Box::Icon::None};
        if (session_.screen().messageBox(question) == forms::Answer::Yes) BtnSave_Click();
    }
    BtnErase_Click();
    hide();
}

}  // namespace extract
