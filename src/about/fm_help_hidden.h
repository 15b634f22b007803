#pragma once

#include "language/dialog.h"

namespace about {

/// The dialog of the help command, never seen: shown, it presses F1 in itself and hides. Without a help
/// context of its own it opens the help at the start page.
class fmHelpHidden : public language::Dialog {
  public:
    explicit fmHelpHidden(session::Session& session);

  protected:
    void Form_Activate() override;
};

}  // namespace about
