#pragma once

#include "faces/win32/control_window.h"
#include "faces/win32/windows_api.h"
#include "forms/form.h"
#include "forms/keys.h"

#include <array>
#include <exception>
#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace win32_face {

/// The window of a form that is up: draws the model, and turns what its user does into acts.
class FormWindow {
  public:
    FormWindow(HINSTANCE module, forms::Form& form, HWND owner);
    ~FormWindow();
    FormWindow(const FormWindow&) = delete;
    FormWindow& operator=(const FormWindow&) = delete;

    forms::Form& form() const { return form_; }
    HWND handle() const { return window_; }
    bool left() const { return left_; }
    /// What an act raised that no guard took; it goes on in the modal loop.
    const std::exception_ptr& failure() const { return failure_; }

    /// Shows the window, with all other windows of the thread disabled.
    void show();
    /// Enables them again and takes the window away, at once: a pick in the drawing may follow.
    void leave();

    void mark(forms::Change change);
    void mark(forms::Control& control, forms::Change change);
    /// Draws what was marked.
    void draw();

    /// Takes a message of the loop that means something for the dialog as a whole; false for what its control
    /// is to get.
    bool takeKey(const MSG& message);

  private:
    static constexpr int kHourglass = 11;  ///< of the model's pointers

    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM w, LPARAM l);
    /// Stands before a list view's own procedure: its header reports to it, and what passes that on to the
    /// form differs between systems.
    static LRESULT CALLBACK viewProcedure(HWND window, UINT message, WPARAM w, LPARAM l, UINT_PTR id,
                                          DWORD_PTR form);
    bool handle(UINT message, WPARAM w, LPARAM l, LRESULT& result);
    void command(forms::Control& control, HWND window, WORD code);
    bool notify(const NMHDR& header, LRESULT& result);
    bool notifyView(forms::ListView& view, const NMHDR& header, LRESULT& result);
    void headerChanged(const NMHDR& header);
    void rowChanged(forms::ListView& view, const NMLISTVIEW& change);
    void resized(int width, int height);
    void moved();
    void limitSize(MINMAXINFO& limits) const;
    void rescale(UINT dpi, const RECT& wanted);

    /// Runs an act; what the user couldn't have done is answered with a beep.
    bool act(const std::function<void()>& what);
    bool takePlainKey(const MSG& message);

    void makeControls(HINSTANCE module);
    void makeFont();
    void drawForm(const forms::Changes& changes);
    void drawIcon();
    void drawPointer() const;
    void drawFocus();
    void markContents(const forms::Control& container, forms::Change change);
    forms::Control* controlOf(HWND window) const;
    RECT frameFor(int width, int height) const;

    forms::Form& form_;
    HWND window_ = nullptr;
    HWND tips_ = nullptr;
    HFONT font_ = nullptr;
    std::array<HICON, 2> icons_{};  ///< the small one, the large one
    Scale scale_;
    DWORD style_ = 0;
    std::vector<forms::Control*> order_;
    std::map<forms::Control*, std::unique_ptr<ControlWindow>> controls_;
    std::map<forms::Control*, forms::Changes> changes_;
    forms::Changes formChanges_;
    std::vector<HWND> disabled_;  ///< by us, to be enabled again
    std::exception_ptr failure_;
    bool drawing_ = false;      ///< what the native controls report now is our own doing
    bool posted_ = false;       ///< a drawing is on its way
    bool keyMovesRow_ = false;  ///< a key was pressed in a list view, whose selection may follow
    bool left_ = false;
};

}  // namespace win32_face
