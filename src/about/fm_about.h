#pragma once

#include "forms/controls.h"
#include "language/dialog.h"

namespace about {

/// The product's identity and the one choice of language. It is made early, by the first dialog that takes
/// its icon from it, and lives as long as the component: its list is that of the languages found then.
class fmAbout : public language::Dialog {
  public:
    explicit fmAbout(session::Session& session);

    // In the order of creation, by which the language files count.
    forms::Label Label1{*this, "Label1"};  ///< product and version
    forms::Label Label2{*this, "Label2"};  ///< copyright
    forms::Label Label3{*this, "Label3"};  ///< the product's web address
    forms::Label Label6{*this, "Label6"};  ///< the prompt of the language list
    forms::ComboBox Combo1{*this, "Combo1"};
    forms::TextBox Text1{*this, "Text1"};  ///< the product notice
    forms::Button BtnWeb{*this, "BtnWeb"};
    forms::Button OKButton{*this, "OKButton"};

  protected:
    void Form_Initialize() override;
    void Form_Load() override;

  private:
    void layOut();
    void fillLanguages();
    /// Puts language, product, copyright, address, caption and prompt in place. Raises a file error where no
    /// language is current.
    void RefreshAboutTexts();

    void Combo1_Change();
    void Combo1_Click();
    void BtnWeb_Click();
    void OKButton_Click();
};

}  // namespace about
