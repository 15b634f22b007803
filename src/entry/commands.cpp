#include "entry/commands.h"

#include "extract/extract_command.h"
#include "labels/labels_command.h"
#include "language/dialog.h"
#include "replace/replace_command.h"

namespace entry {
namespace {

void showOnce(Session& session, std::string_view dialog) {
    language::showOwned(session, session.form(dialog));
}

/// The extraction has no starter: its dialog hides and shows itself round every step in the drawing.
void showExtract(Session& session) { showOnce(session, "fmExtract"); }

struct Command {
    std::string_view code;
    void (*start)(Session&);
};

/// In the order in which the code is compared.
constexpr Command kCommands[] = {
    {"0", labels::StartLabels}, {"1", replace::RunReplaceCommand},
    {"2", showExtract},         {"3", extract::StartReInsert},
    {"4", StartHelp},           {"5", StartAbout},
};

}  // namespace

void StartHelp(Session& session) { showOnce(session, "fmHelpHidden"); }

void StartAbout(Session& session) { showOnce(session, "fmAbout"); }

void runCommand(Session& session, std::string_view CmdCode) {
    for (const Command& command : kCommands) {
        if (CmdCode != command.code) continue;
        return command.start(session);
    }
}

}  // namespace entry
