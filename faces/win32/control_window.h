#pragma once

#include "faces/win32/windows_api.h"
#include "forms/change.h"
#include "forms/controls.h"

#include <string>
#include <vector>

namespace win32_face {

/// The native window of a control. It draws the model and keeps nothing of it but what is drawn.
class ControlWindow {
  public:
    /// Kinds that are drawn by what they hold or not at all have none.
    static bool isDrawn(forms::Kind kind);

    ControlWindow(HINSTANCE module, HWND form, forms::Control& control, int id);

    HWND handle() const { return handle_; }
    /// A tip of the tool tip window, which follows the control's text.
    void addToolTip(HWND tips);
    void setFont(HFONT font);

    /// Draws what changed. `accelerator` is the place in the caption of the letter to underline, or npos.
    void draw(const forms::Changes& changes, const Scale& scale, std::size_t accelerator, HWND tips);

  private:
    void drawBounds(const Scale& scale);
    void drawCaption(std::size_t accelerator);
    void drawEntries(const forms::Changes& changes, forms::ListControl& list);
    void drawTable(const forms::Changes& changes, forms::ListView& view, const Scale& scale);
    void drawColumns(forms::ListView& view, const Scale& scale);
    void drawRows(forms::ListView& view);
    void drawSelectedRow(forms::ListView& view);

    forms::Control& control_;
    HWND handle_ = nullptr;
};

}  // namespace win32_face
