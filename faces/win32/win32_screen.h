#pragma once

#include "forms/screen.h"

#include <memory>
#include <vector>

namespace win32_face {

class FormWindow;
class VisualStyles;

/// The face on native windows (docs/faces.md). A form is a window of the class "VorlaneForm"; it and its
/// controls carry their names in the window property "VorlaneName", for programs that drive dialogs.
class Win32Screen : public forms::Screen {
  public:
    /// `module` is the handle of the module whose resources hold icon and manifest.
    explicit Win32Screen(void* module);
    ~Win32Screen() override;

    void runModal(forms::Form& form) override;
    void hidden(forms::Form& form) override;
    void changed(forms::Form& form, forms::Change change) override;
    void changed(forms::Control& control, forms::Change change) override;
    forms::Answer messageBox(const forms::MessageDialog& box) override;
    std::optional<std::string> fileDialog(const forms::FileDialog& dialog,
                                          forms::FileDialogMode mode) override;
    void reportFailure(std::int32_t number, const std::string& description) override;

  private:
    /// The window that a new one belongs to: our topmost, else the host's active one.
    void* owner() const;
    /// Draws what is gathered, before something else comes up.
    void drawAll();

    void* module_;
    std::unique_ptr<VisualStyles> styles_;
    std::vector<std::unique_ptr<FormWindow>> up_;
};

}  // namespace win32_face
