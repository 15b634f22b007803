#pragma once

#include "forms/controls.h"
#include "labels/insertion_loop.h"
#include "language/dialog.h"

#include <string>

namespace labels {

/// The dialog of the insertion: scales, rotation, leader line. It has no data but its controls, whose state
/// lasts as long as the dialog; each choice of a block in fmLabels puts the four texts back.
class fmParamIns : public language::Dialog, public InsertionSettings {
  public:
    explicit fmParamIns(session::Session& session);

    // In the order of creation, by which the language files count.
    forms::Frame Frame1{*this, "Frame1"};
    forms::Label Label1{*this, "Label1"};
    forms::TextBox Text1{*this, "Text1"};  ///< X scale
    forms::Label Label2{*this, "Label2"};
    forms::TextBox Text2{*this, "Text2"};  ///< Y scale
    forms::Label Label3{*this, "Label3"};
    forms::TextBox Text3{*this, "Text3"};  ///< Z scale
    forms::Frame Frame2{*this, "Frame2"};
    forms::PictureBox Picture1{*this, "Picture1"};
    forms::CheckBox CheckBox1{*this, "CheckBox1"};  ///< each label's orientation is asked for
    forms::Label Label4{*this, "Label4"};
    forms::TextBox Text4{*this, "Text4"};  ///< rotation in degrees
    forms::Frame Frame3{*this, "Frame3"};
    forms::CheckBox CheckBox2{*this, "CheckBox2"};  ///< a leader line for each label
    forms::PictureBox Picture2{*this, "Picture2"};
    forms::OptionButton Option1{*this, "Option1"};  ///< from a point that is asked for
    forms::OptionButton Option2{*this, "Option2"};  ///< from the label's own pick
    forms::Button OKButton{*this, "OKButton"};

    /// The correction rule: where `Option2` is on against leaderMayStartAtPick, puts `Option1` in its place
    /// and says so. Every change of a mode in fmLabels runs it too, with this dialog hidden or not yet seen.
    void Option2_Click();

    const std::string& xScale() const override { return Text1.text(); }
    const std::string& yScale() const override { return Text2.text(); }
    const std::string& zScale() const override { return Text3.text(); }
    const std::string& rotation() const override { return Text4.text(); }
    bool asksOrientation() const override { return CheckBox1.value() == 1; }
    bool drawsLeader() const override { return CheckBox2.value() == 1; }
    bool leaderStartsAtNewPoint() const override { return Option1.value(); }

  protected:
    void Form_Initialize() override;

  private:
    void layOut();
    void layOutLeader();
    void wire();

    void OKButton_Click();
    void CheckBox1_Click();
    void CheckBox2_Click();
    void Option1_Click();
};

}  // namespace labels
