#pragma once

#include "forms/controls.h"
#include "host/entities.h"
#include "labels/label_rows.h"
#include "labels/value_capture.h"
#include "language/dialog.h"

#include <cstdint>
#include <string>

namespace labels {

/// The dialog of the labelling: the block to insert, and for each of its attributes a row with its value and
/// the mode that the value is taken in. `Text1` and `Combo1` belong to the row that is selected, which
/// `Label3` names.
///
/// For a pick, for the side dialogs and for the insertion it hides itself, and comes back by a modal show
/// within the handler.
class fmLabels : public language::Dialog, public LabelRows, public ValueCapture {
  public:
    explicit fmLabels(session::Session& session);

    // In the order of creation, by which the language files count.
    forms::Label Label1{*this, "Label1"};
    forms::ComboBox Combo2{*this, "Combo2"};  ///< the block's name
    forms::Button BtnEtiquette{*this, "BtnEtiquette"};
    forms::Button BtnImport{*this, "BtnImport"};
    forms::Frame Frame1{*this, "Frame1"};
    forms::ListView ListView1{*this, "ListView1"};
    forms::PictureBox Picture1{*this, "Picture1"};
    forms::Label Label3{*this, "Label3"};
    forms::TextBox Text1{*this, "Text1"};     ///< the manual value of the selected row
    forms::ComboBox Combo1{*this, "Combo1"};  ///< the mode of the selected row
    forms::Button BtnAttFormat{*this, "BtnAttFormat"};
    forms::Button BtnParametre{*this, "BtnParametre"};
    forms::Button BtnInserer{*this, "BtnInserer"};
    forms::Button OKButton{*this, "OKButton"};
    forms::Label Label2{*this, "Label2"};  ///< never visible: the block that is inserted
    forms::FileDialog CommonDialog1{*this, "CommonDialog1"};

    /// Fills the rows from the block that `Combo2` names, read from a trial reference.
    void Combo2_Click();
    /// Fits the fields of the selected row to its mode: only a manual value is typed, only the others have a
    /// format.
    void EtatTBox1();

    // LabelRows.
    const std::string& blockName() const override { return Label2.caption(); }
    const std::string& manualValue(int row) const override;
    const std::string& modeText(int row) const override;
    int modeCount() const override { return Combo1.listCount(); }
    const std::string& modeEntry(int mode) const override { return Combo1.list(mode); }

  protected:
    void Form_Initialize() override;
    void Form_Activate() override;

  private:
    // In fm_labels_layout.cpp.
    void layOut();
    void layOutRows();
    void wire();

    void BRefresh();
    void BtnImport_Click();
    void BtnEtiquette_Click();
    void Combo2_Change();
    void Combo1_Change();
    void Combo1_Click();
    void BtnAttFormat_Click();
    void BtnParametre_Click();
    void BtnInserer_Click();
    void ListView1_BeforeLabelEdit(bool& cancel);
    void ListView1_ItemClick();
    void ListView1_KeyDown();
    void ShowSelectedItem();
    void Text1_Change();
    void OKButton_Click();

    void fillRows(const host::Attributes& attributes);
    std::string plain(double value) const;

    using Dialog::session_;
};

}  // namespace labels
