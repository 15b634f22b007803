#pragma once

#include "extract/block_table.h"
#include "extract/window_row.h"
#include "forms/controls.h"
#include "host/entities.h"
#include "language/dialog.h"

#include <cstdint>
#include <string>

namespace extract {

/// The dialog of the extraction: the table of a block's references in a zone, and its text file.
///
/// It hides itself for every step that needs the drawing or a file dialog and comes back by a modal show of
/// its own within the handler; these shows end together when it is closed. A failure in the drawing ends the
/// handler with the dialog hidden, and the command with it.
class fmExtract : public language::Dialog {
  public:
    explicit fmExtract(session::Session& session);

    // In the order of creation, by which the language files count.
    forms::FileDialog CommonDialog1{*this, "CommonDialog1"};
    forms::CheckBox CheckBox1{*this, "CheckBox1"};  ///< never visible, 1: the table is saved, 0: it isn't
    forms::Button BtnClose{*this, "BtnClose"};
    forms::Button BtnErase{*this, "BtnErase"};
    forms::Button BtnSave{*this, "BtnSave"};
    forms::Button BtnNew{*this, "BtnNew"};
    forms::Frame Frame2{*this, "Frame2"};
    forms::ListView ListView2{*this, "ListView2"};  ///< the table
    forms::Label Label1{*this, "Label1"};           ///< name of the table's block
    forms::Label Label0{*this, "Label0"};

  protected:
    void Form_Initialize() override;
    /// The resize rule holds from the first showing on, whether the size has changed by then or not.
    void Form_Load() override;
    void Form_Resize() override;

  private:
    void layOut();
    void wire();

    void BtnNew_Click();
    /// Lets the user pick the reference that the columns follow until one is to be gone on with. Nothing when
    /// the pick is broken off, and when fmVnMessage is cancelled, which leaves columns without rows.
    host::BlockReference pickModel(SkipAtFirst& regime);
    /// Tells what was picked and gives the answer of fmVnMessage.
    std::string askHowToGoOn(const std::string& name);
    void BtnSave_Click();
    void BtnErase_Click();
    void BtnClose_Click();

    WindowRow window_;
};

}  // namespace extract
