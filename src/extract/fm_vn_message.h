#pragma once

#include "forms/controls.h"
#include "language/dialog.h"

namespace extract {

/// The small dialog between the pick of a reference and the selection of the zone: it tells what was picked
/// and asks how to go on.
class fmVnMessage : public language::Dialog {
  public:
    explicit fmVnMessage(session::Session& session);

    // In the order of creation, by which the language files count.
    forms::Label Label1{*this, "Label1"};         ///< what was picked; set before every show
    forms::Line Line1{*this, "Line1"};            ///< a rule above the buttons
    forms::Button BtnSelect{*this, "BtnSelect"};  ///< pick again
    forms::Button OKButton{*this, "OKButton"};    ///< go on to the zone
    forms::Button CancelButton{*this, "CancelButton"};
    /// Never visible: the answer, "0" to pick again, "1" to go on, "2" to give up. After the frame's close
    /// box it is empty.
    forms::TextBox Text1{*this, "Text1"};

  protected:
    void Form_Initialize() override;

  private:
    void layOut();

    void BtnSelect_Click();
    void OKButton_Click();
    void CancelButton_Click();
};

}  // namespace extract
