#pragma once

#include "forms/controls.h"
#include "language/dialog.h"

namespace labels {

/// The dialog of an attribute's format: prefix, suffix, and the number of decimals or a counter's first value
/// and step. It shows the remembered format of the mode; OK gives it to the attribute that is selected in
/// fmLabels and to the mode's row in `VTable`.
class fmAttFormat : public language::Dialog {
  public:
    explicit fmAttFormat(session::Session& session);

    // In the order of creation, by which the language files count.
    forms::Label Label1{*this, "Label1"};  ///< reads the same for every attribute
    forms::Label LabelTag{*this, "LabelTag"};
    forms::Label Label2{*this, "Label2"};
    forms::Label LabelMode{*this, "LabelMode"};
    forms::Frame Frame1{*this, "Frame1"};
    forms::Label Label4{*this, "Label4"};
    forms::TextBox Text1{*this, "Text1"};  ///< prefix
    forms::Label Label5{*this, "Label5"};
    forms::TextBox Text2{*this, "Text2"};  ///< suffix
    forms::Label Label6{*this, "Label6"};
    forms::ComboBox Combo1{*this, "Combo1"};  ///< the masks, filled by StartLabels; on the spot of Text3
    forms::TextBox Text3{*this, "Text3"};     ///< a counter's first value
    forms::Label Label7{*this, "Label7"};
    forms::TextBox Text4{*this, "Text4"};  ///< a counter's step
    forms::Button OKButton{*this, "OKButton"};
    forms::Button CancelButton{*this, "CancelButton"};

    /// Shows the fields that a mode has, and shrinks frame and dialog to them.
    void showFieldsOf(int mode);

  protected:
    void Form_Initialize() override;

  private:
    void layOut();
    void layOutFields();
    void wire();

    void Combo1_Change();
    void OKButton_Click();
    void CancelButton_Click();
    void backToLabels();
};

}  // namespace labels
