#include "about/fm_help_hidden.h"

#include "forms/acts.h"

namespace about {

fmHelpHidden::fmHelpHidden(session::Session& session)
    : Dialog(session, "fmHelpHidden", "008", "Boîte de dialogue") {}

void fmHelpHidden::Form_Activate() {
    forms::acts::key(*this, forms::Key::F1);  // returns when the key has been processed
    hide();
}

}  // namespace about
