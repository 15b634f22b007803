#include "entry/commands.h"

#include "extract/extract_command.h"
#include "forms/form.h"
#include "labels/labels_command.h"
#include "replace/replace_command.h"

namespace entry {
namespace {

void showOnce(Session& session, std::string_view dialog) {
    session.form(dialog).show(session.screen(), &session.form("fmOwner"));
}

/// The extraction has no starter: its dialog hides and shows itself round every step in the drawing.
void showExtract(Session& session) { showOnce(session, "fmExtract"); }

struct Command {
    std::string_view code;
    std::string_view dialog;
    void (*start)(Session&);
};

/// In the order in which the code is compared. A command is dispatched once its dialog is registered.
constexpr Command kCommands[] = {
    {"0", "fmLabels", labels::StartLabels}, {"1", "fmReplace", replace::RunReplaceCommand},
    {"2", "fmExtract", showExtract},        {"3", "fmReInsert", extract::StartReInsert},
    {"4", "fmHelpHidden", StartHelp},       {"5", "fmAbout", StartAbout},
};

}  // namespace

void StartHelp(Session& session) { showOnce(session, "fmHelpHidden"); }

void StartAbout(Session& session) { showOnce(session, "fmAbout"); }

void runCommand(Session& session, std::string_view CmdCode) {
    for (const Command& command : kCommands) {
        if (CmdCode != command.code) continue;
        if (session.canMakeForm(command.dialog)) command.start(session);
        return;
    }
}

}  // namespace entry
