#include "entry/fm_owner.h"

#include "entry/commands.h"

namespace entry {

fmOwner::fmOwner(session::Session& session) : Form("fmOwner", "", "Boîte de dialogue"), session_(session) {}

void fmOwner::Form_Activate() {
    hide();  // it stays loaded; with it hidden, its modal show returns as soon as the command is over
    runCommand(session_, session_.CmdCode);
}

}  // namespace entry
