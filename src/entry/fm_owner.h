#pragma once

#include "forms/controls.h"
#include "session/session.h"

namespace entry {

/// The form that is never seen: it starts the command as it is activated and serves as owner of all dialogs.
class fmOwner : public forms::Form {
  public:
    explicit fmOwner(session::Session& session);

    forms::FileDialog CommonDialog1{*this, "CommonDialog1"};  ///< no operation touches it

  protected:
    void Form_Activate() override;

  private:
    session::Session& session_;
};

}  // namespace entry
