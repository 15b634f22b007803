#include "labels/labels_command.h"

#include "labels/fm_att_format.h"
#include "labels/fm_labels.h"
#include "labels/fm_param_ins.h"
#include "labels/label_table.h"
#include "labels/value_modes.h"
#include "language/dialog.h"

namespace labels {

void registerForms(Session& session) {
    session.registerForm("fmLabels", [](Session& s) { return std::make_unique<fmLabels>(s); });
    session.registerForm("fmAttFormat", [](Session& s) { return std::make_unique<fmAttFormat>(s); });
    session.registerForm("fmParamIns", [](Session& s) { return std::make_unique<fmParamIns>(s); });
}

void StartLabels(Session& session) {
    // Not emptied first: in a dialog that outlives a command the list grows by ten, and its first ten entries
    // still stand at their number of decimals.
    auto& format = session.form<fmAttFormat>("fmAttFormat");
    for (const std::string_view mask : kDecimalMasks) format.Combo1.addItem(mask);

    auto& dialog = session.form<fmLabels>("fmLabels");
    dialog.Combo1.clear();
    for (std::size_t i = 0; i < kModeTexts.size(); ++i)
        dialog.Combo1.addItem(kModeTexts[i], static_cast<int>(i));
    dialog.Combo1.setListIndex(kManual);  // a mode change, as yet without a row to change

    resetLabelTable(session);
    // The rows of a dialog that outlived a command have lost their table: they are read from their block
    // anew.
    if (dialog.ListView1.listItems().count() > 0) dialog.Combo2_Click();
    language::showOwned(session, dialog);
}

}  // namespace labels
