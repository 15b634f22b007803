#include "about/fm_help.h"

#include "about/open_document.h"
#include "forms/acts.h"
#include "language/language.h"
#include "platform/platform.h"

namespace about {

fmHelp::fmHelp(session::Session& session) : Dialog(session, "fmHelp", "007", "Aide ") {
    resizeTo(4920 + kFrameWidth, 1380 + kFrameHeight);
    BtnHelp.place(120, 180, 2280, 375);
    BtnHelp.setCaption("Aide local");
    Command1.place(2520, 180, 2280, 375);
    Command1.setCaption("Site Web");
    Line1.setEnds(120, 720, 4800, 720);
    cmdOK.place(3300, 885, 1500, 375);
    cmdOK.setCaption("Annuler");
    cmdOK.setCancel(true);

    cmdOK.onClick = [this] { cmdOK_Click(); };
    BtnHelp.onClick = [this] { BtnHelp_Click(); };
    Command1.onClick = [this] { Command1_Click(); };
}

// Not the common set-up: the captions stay French in every language, and the title says what msg_101 says.
void fmHelp::Form_Initialize() {
    session_.platform().initCommonControls();
    setIcon(session_.form("fmAbout").icon());
    setCaption(caption() + language::GetMsg(session_, 101));
}

void fmHelp::Form_Activate() {
    forms::acts::key(*this, forms::Key::F1);
    hide();
}

void fmHelp::BtnHelp_Click() { forms::acts::key(*this, forms::Key::F1); }

void fmHelp::Command1_Click() { OpenDocument(session_, siteAddress("/query.php?link=03010001")); }

void fmHelp::cmdOK_Click() { hide(); }

}  // namespace about
