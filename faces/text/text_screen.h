#pragma once

#include "faces/text/line_source.h"
#include "forms/screen.h"

#include <functional>
#include <iosfwd>

namespace text_face {

/// The face on text: prints what is shown as it happens, and takes the user's acts and answers from lines. A
/// line that can't be carried out stops a script (ScriptError); a person is told and asked again.
class TextScreen : public forms::Screen {
  public:
    /// `help` opens the help at a topic.
    TextScreen(LineSource& source, std::ostream& output, std::function<void(int context)> help);

    void runModal(forms::Form& form) override;
    void hidden(forms::Form& form) override;
    /// A text can't be drawn anew: what changed is seen with the line `show`.
    void changed(forms::Form&) override {}
    void changed(forms::Control&) override {}
    /// Answered with ok, cancel, yes or no.
    forms::Answer messageBox(const forms::MessageBox& box) override;
    /// Answered with "file PATH", a relative path counting from the dialog's folder, or with "cancel".
    std::optional<std::string> fileDialog(const forms::FileDialog& dialog,
                                          forms::FileDialogMode mode) override;
    void reportFailure(std::int32_t number, const std::string& description) override;
    void showHelp(int context) override;

  private:
    std::string nextLine(std::string_view waiting);

    LineSource& source_;
    std::ostream& output_;
    std::function<void(int)> help_;
};

}  // namespace text_face
