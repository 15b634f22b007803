#pragma once

#include "extract/parameter_list.h"
#include "extract/window_row.h"
#include "forms/controls.h"
#include "language/dialog.h"

#include <cstdint>
#include <string>

namespace extract {

/// The dialog of the re-insertion: a block, a block data file and the mapping between them, from which it
/// inserts a reference a row.
///
/// For a pick it hides itself; StartReInsert shows it again as long as `IsClosed` is false. For a data file
/// it comes back by a modal show within the handler.
class fmReInsert : public language::Dialog {
  public:
    explicit fmReInsert(session::Session& session);

    // In the order of creation, by which the language files count.
    forms::TextBox TxtName{*this, "TxtName"};                 ///< never visible: name of the chosen block
    forms::FileDialog CommonDialog2{*this, "CommonDialog2"};  ///< the block file
    forms::FileDialog CommonDialog1{*this, "CommonDialog1"};  ///< the data file
    forms::Frame Frame1{*this, "Frame1"};           ///< its caption ends in "''" until a block is chosen
    forms::ListView ListView1{*this, "ListView1"};  ///< parameters and their mappings
    forms::Label LblVal{*this, "LblVal"};
    forms::ComboBox ComboBox1{*this, "ComboBox1"};  ///< the selected row's mapping
    forms::Frame Frame2{*this, "Frame2"};           ///< its caption ends in "''" until a file is loaded
    forms::ListView ListView2{*this, "ListView2"};  ///< the rows
    forms::Label Label1{*this, "Label1"};
    forms::ComboBox Combo1{*this, "Combo1"};  ///< the choice of the block
    forms::Button BtnBloc{*this, "BtnBloc"};  ///< never visible, so its handler can't be reached by a user
    forms::Button BtnData{*this, "BtnData"};
    forms::CheckBox Check1{*this, "Check1"};  ///< the leader line
    forms::Button BtnInsert{*this, "BtnInsert"};
    forms::Button BtnClose{*this, "BtnClose"};

    /// Set by BtnClose and by nothing set back: a second command on the same object ends with the first hide.
    bool IsClosed = false;

    /// Fills the choice of blocks: two commands, told by their places 0 and 1, and the drawing's blocks,
    /// sorted among them. A block that sorts before the second command takes its place, and with it its
    /// effect. Raises what the host raises.
    void RefreshCombo1();

  protected:
    void Form_Initialize() override;
    /// The resize rule holds from the first showing on, whether the size has changed by then or not.
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Resize() override;

  private:
    // In fm_re_insert_layout.cpp.
    void layOut();
    void layOutMapping();
    void layOutBottom();
    void wire();

    // The block.
    void Combo1_Click();
    void showParametersOf(const std::string& name);
    void BtnBloc_Click();
    host::BlockReference pickOldStyle(basic::ErrorState& errors);

    // The mapping.
    void ListView1_ItemClick();
    void ListView1_BeforeLabelEdit(bool& cancel);
    void ComboBox1_Change();
    void ComboBox1_Click();
    void UpdateLeaderOption();
    void UpdateInsertButton();

    // The data file.
    void BtnData_Click();
    void loadData(const std::string& path);
    void loadColumns(const std::vector<std::string>& fields);
    void loadRow(const std::vector<std::string>& fields);

    void BtnInsert_Click();
    void BtnClose_Click();

    WindowRow window_;
    ParameterList parameters_{ListView1, ListView2};
    /// The columns come from a file. Nothing sets it back: the column line of a second file is a row like
    /// others.
    bool ColumnsLoaded_ = false;
};

}  // namespace extract
