#pragma once

#include "forms/controls.h"
#include "language/dialog.h"

namespace about {

/// The way to the local help and to the support page. No command opens it; it isn't translated, and it hides
/// itself as soon as its showing has opened the help.
class fmHelp : public language::Dialog {
  public:
    explicit fmHelp(session::Session& session);

    forms::Button cmdOK{*this, "cmdOK"};  ///< OK by its name, cancel by its caption
    forms::Button BtnHelp{*this, "BtnHelp"};
    forms::Button Command1{*this, "Command1"};
    forms::FileDialog CommonDialog1{*this, "CommonDialog1"};  ///< no operation touches it
    forms::Line Line1{*this, "Line1"};

  protected:
    void Form_Initialize() override;
    void Form_Activate() override;

  private:
    void BtnHelp_Click();
    void Command1_Click();
    void cmdOK_Click();
};

}  // namespace about
