#include "replace/replace_command.h"

#include "host/document.h"
#include "language/dialog.h"
#include "replace/fm_att_set.h"
#include "replace/fm_replace.h"

namespace replace {
namespace {

/// The set is taken whatever its name, and it stays in the drawing after the command.
host::SelectionSet firstSelectionSet(const Session& session) {
    const host::SelectionSets sets = host::Document(session.AcadDoc).SelectionSets();
    return sets.Count() == 0 ? sets.Add("SS1") : sets.Item(std::int16_t{0});
}

}  // namespace

void registerForms(Session& session) {
    session.registerForm("fmReplace", [](Session& s) { return std::make_unique<fmReplace>(s); });
    session.registerForm("fmAttSet", [](Session& s) { return std::make_unique<fmAttSet>(s); });
}

void RunReplaceCommand(Session& session) {
    const host::SelectionSet set = firstSelectionSet(session);
    session.ReplaceSelectionSet = set.object();
    set.Clear();
    auto& dialog = session.form<fmReplace>("fmReplace");
    for (;;) {
        language::showOwned(session, dialog);
        if (dialog.Check2.value() != 1) return;
        dialog.Check2.setValue(0);
        dialog.CboBlocReplacer.setText(dialog.TxtBlocReplacer.text());
    }
}

}  // namespace replace
