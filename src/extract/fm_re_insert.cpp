#include "extract/fm_re_insert.h"

#include "basic/error_state.h"
#include "basic/numbers.h"
#include "basic/text.h"
#include "blocks/block_file.h"
#include "blocks/block_names.h"
#include "blocks/list_entry.h"
#include "blocks/pick.h"
#include "blocks/trial_insertion.h"
#include "extract/block_data_file.h"
#include "extract/insertion_run.h"
#include "extract/messages.h"
#include "extract/selection_set.h"
#include "forms/screen.h"
#include "host/document.h"
#include "language/language.h"
#include "language/translation.h"
#include "platform/platform.h"

#include <algorithm>
#include <optional>

namespace extract {

using Box = forms::MessageDialog;

namespace {

constexpr int kDefaultPointer = 0;
constexpr int kHourglass = 11;

}  // namespace

void fmReInsert::Form_Initialize() {
    language::InitForm(session_, *this);
    ListView1.setHideSelection(false);
    parameters_.addFixedParameters();
    RefreshCombo1();
    window_.apply(*this);
}

void fmReInsert::Form_Load() { Form_Resize(); }

/// Takes a command's text out of the field after a pick.
void fmReInsert::Form_Activate() { Combo1.setText(TxtName.text()); }

void fmReInsert::RefreshCombo1() {
    const std::optional<blocks::BlockNames> names = blocks::GetBlockNames(session_);
    if (!names) return;
    Combo1.clear();
    Combo1.addItem("<<< " + message(kSelect), 0);
    Combo1.addItem(message(kBrowse) + " >>>", 1);
    for (const std::string& name : *names) Combo1.addItem(name);
    Combo1.setText(TxtName.text());
}

/// A pick leaves the dialog hidden, broken off or not: StartReInsert shows it again.
void fmReInsert::Combo1_Click() {
    basic::ErrorState errors;  // errors are ignored throughout
    const std::string oldName = TxtName.text();
    const int entry = Combo1.listIndex();
    if (entry < 0) return;
    if (entry == 0) {
        errors.skip([&] { hide(); });
        errors.skip(
            [&] { TxtName.setText(blocks::PickBlockReference(session_, message(kPickBlock)).Name()); });
    } else if (entry == 1) {
        errors.skip([&] {
            basic::Variant attributes;  // not used: they belong to a deleted reference
            const std::string title = message(kBlockFileTitle);
            TxtName.setText(blocks::BrowseBlockFile(session_, CommonDialog2, attributes, "", title));
        });
        errors.skip([&] { RefreshCombo1(); });
    } else {
        errors.skip([&] { TxtName.setText(Combo1.text()); });
    }
    // A copy: the field may change before its name has served.
    if (const std::string name = TxtName.text(); name != oldName) showParametersOf(name);
}

/// A name that the drawing doesn't know fails without a word and gets the fixed parameters alone. Selecting
/// the entry at the end comes back to Combo1_Click, which for a block in the second command's place browses.
void fmReInsert::showParametersOf(const std::string& name) {
    basic::ErrorState errors;  // errors are ignored throughout
    host::BlockReference trial;
    errors.skip([&] { trial = blocks::InsertTrialReference(session_, name); });
    errors.skip([&] { Frame1.setCaption("Attributs de '" + name + "'"); });
    parameters_.ResetParameterRows(trial, ColumnsLoaded_, ComboBox1, errors);
    parameters_.ApplyDefaultMapping(errors);
    errors.skip([&] { UpdateLeaderOption(); });
    errors.skip([&] { trial.Delete(); });
    errors.skip([&] { UpdateInsertButton(); });
    errors.skip([&] { blocks::SelectListEntry(Combo1, name); });
}

/// The pick of a time before `Combo1`, with texts that are the same in every language. It deletes nothing and
/// leaves the leader option alone.
void fmReInsert::BtnBloc_Click() {
    basic::ErrorState errors;  // errors are ignored throughout
    errors.skip([&] { hide(); });
    firstSelectionSet(session_, errors);  // not used
    if (const host::BlockReference reference = pickOldStyle(errors); !reference.isNothing()) {
        errors.skip([&] { Frame1.setCaption("Attributs de '" + reference.Name() + "'"); });
        errors.skip([&] { TxtName.setText(reference.Name()); });
        parameters_.ResetParameterRows(reference, ColumnsLoaded_, ComboBox1, errors);
        parameters_.ApplyDefaultMapping(errors);
    }
    errors.skip([&] { UpdateInsertButton(); });
    errors.skip([&] { showAgain(); });
}

host::BlockReference fmReInsert::pickOldStyle(basic::ErrorState& errors) {
    host::ObjectPtr picked;
    for (;;) {
        errors.clear();
        basic::Variant point;  // never read
        errors.skip([&] {
            host::Document(session_.AcadDoc)
                .Utility()
                .GetEntity(picked, point, "Selectionner l'étiquette à insérer :");
        });
        if (!errors.test([&] { return host::Entity(picked).ObjectName() != "AcDbBlockReference"; }))
            return host::BlockReference(picked);
        const Box question{"L'objet selectionné n'est pas un bloc.", "Ardenix 1.0 : Selection de l'étiquette",
                           Box::Buttons::OkCancel, Box::Icon::Exclamation};
        if (session_.screen().messageBox(question) == forms::Answer::Cancel) return {};
    }
}

void fmReInsert::ListView1_ItemClick() { ComboBox1.setText(ListView1.selectedItem().subItem(1)); }

void fmReInsert::ListView1_BeforeLabelEdit(bool& cancel) { cancel = true; }

void fmReInsert::ComboBox1_Change() {
    basic::ErrorState errors;  // errors are ignored throughout
    errors.skip([&] { ListView1.selectedItem().setSubItem(1, ComboBox1.text()); });
    errors.skip([&] { UpdateLeaderOption(); });
}

void fmReInsert::ComboBox1_Click() { ComboBox1_Change(); }

/// Offers the leader line while some delta isn't 0. A delta that is no number, such as a column's name or
/// nothing, makes the test fail, which enters its branch: that is how deltas from a column work.
void fmReInsert::UpdateLeaderOption() {
    basic::ErrorState errors;  // errors are ignored throughout
    const auto anyDelta = [&] {
        double delta[3] = {};
        for (int i = 0; i < 3; ++i)
            delta[i] = basic::toDouble(parameters_.mapping(kDeltaRows[i]), session_.platform().regional());
        return delta[0] != 0 || delta[1] != 0 || delta[2] != 0;
    };
    if (errors.test(anyDelta)) {
        errors.skip([&] { Check1.setEnabled(true); });
    } else {
        errors.skip([&] { Check1.setValue(0); });
        errors.skip([&] { Check1.setEnabled(false); });
    }
}

/// Goes by the captions alone, so a name or a path that ends in an apostrophe keeps the button off.
void fmReInsert::UpdateInsertButton() {
    BtnInsert.setEnabled(!Frame1.caption().ends_with("''") && !Frame2.caption().ends_with("''"));
}

/// The leader option isn't updated, so its check mark survives the deltas' return to "0". A dialog that is
/// cancelled keeps the path of an earlier load, and the file is read again.
void fmReInsert::BtnData_Click() {
    hide();
    basic::ErrorState errors;  // errors are ignored from here on
    errors.skip([&] { CommonDialog1.setFilter(kBlockDataFilter); });
    errors.skip([&] { CommonDialog1.setDialogTitle("Sélectionnez le fichier des données d'insertion"); });
    errors.skip([&] { CommonDialog1.setFlags(kHideReadOnly); });
    errors.skip([&] { CommonDialog1.showOpen(session_.screen()); });
    if (!CommonDialog1.fileName().empty()) loadData(CommonDialog1.fileName());
    errors.skip([&] { UpdateInsertButton(); });
    errors.skip([&] { showAgain(); });
}

/// The block that the file names goes into the caption and isn't compared with the one that was chosen.
void fmReInsert::loadData(const std::string& path) {
    BlockDataReader file(path);
    // A title line without a tab has no second field, and the caption stays.
    if (file.next() && file.fields().size() > 1) {
        Frame2.setCaption("Données d'insert° du bloc '" + file.fields()[1] + "' : '" +
                          std::string(basic::trim(path)) + "'");
    }
    ListView2.listItems().clear();
    while (file.next()) {
        if (ColumnsLoaded_) {
            loadRow(file.fields());
        } else {
            loadColumns(file.fields());
        }
    }
}

void fmReInsert::loadColumns(const std::vector<std::string>& fields) {
    ListView2.columnHeaders().clear();
    ComboBox1.clear();
    for (const std::string& field : fields) {
        ListView2.columnHeaders().add(field, 700);
        ComboBox1.addItem(field);
    }
    basic::ErrorState errors;
    errors.skip([&] { ListView2.columnHeaders().setWidth(1, 300); });
    parameters_.ApplyDefaultMapping(errors);
    ColumnsLoaded_ = true;
}

/// Fields behind the last column are dropped, missing ones leave their cells empty.
void fmReInsert::loadRow(const std::vector<std::string>& fields) {
    if (fields.empty()) return;
    forms::ListItem& row = ListView2.listItems().add(fields[0]);
    const int count = std::min(static_cast<int>(fields.size()), ListView2.columnHeaders().count());
    for (int i = 1; i < count; ++i) row.setSubItem(i, fields[static_cast<std::size_t>(i)]);
}

/// Errors are ignored but for the rows, each of which has a guard of its own. The dialog stays up.
void fmReInsert::BtnInsert_Click() {
    basic::ErrorState errors;
    errors.skip([&] { setMousePointer(kHourglass); });
    InsertionRun run(session_, parameters_, TxtName.text(), Check1.value() == 1);
    run.insertRows(ListView2.listItems().count());
    errors.skip([&] { setMousePointer(kDefaultPointer); });
    std::string title;
    errors.skip([&] { title = message(kBoxTitle); });
    session_.screen().messageBox({run.report(), title, Box::Buttons::Ok, run.icon()});
}

/// The captions of the frames stay, as do `TxtName`, `Combo1` and the knowledge that columns were loaded.
void fmReInsert::BtnClose_Click() {
    ListView1.columnHeaders().clear();
    ListView1.listItems().clear();
    ListView2.columnHeaders().clear();
    ListView2.listItems().clear();
    ComboBox1.clear();
    Check1.setValue(0);
    Check1.setEnabled(false);
    IsClosed = true;
    hide();
}

}  // namespace extract
