#pragma once

#include "faces/text/hand.h"
#include "faces/text/line_source.h"
#include "forms/screen.h"

#include <filesystem>
#include <functional>
#include <iosfwd>

namespace text_face {

/// The face on text: prints what is shown as it happens, and takes the user's acts and answers from lines. A
/// line that can't be carried out stops a script (ScriptError); a person is told and asked again.
class TextScreen : public forms::Screen {
  public:
    TextScreen(LineSource& source, std::ostream& output) : source_(source), output_(output) {}

    void runModal(forms::Form& form) override;
    void hidden(forms::Form& form) override;
    /// A text can't be drawn anew: what changed is seen with the line `show`.
    void changed(forms::Form&, forms::Change) override {}
    void changed(forms::Control&, forms::Change) override {}
    /// Answered with ok, cancel, yes or no.
    forms::Answer messageBox(const forms::MessageDialog& box) override;
    /// Answered with "file PATH" or with "cancel". "~" is the user's own folder, a relative path counts from
    /// the dialog's; the path comes out absolute. A path that won't do fails a script; a person is told and
    /// asked again, and asked before a file is overwritten.
    std::optional<std::string> fileDialog(const forms::FileDialog& dialog,
                                          forms::FileDialogMode mode) override;
    void reportFailure(std::int32_t number, const std::string& description) override;

    /// `explain` says what to do about a failure of that number, outside of the dialog's own words; nothing
    /// for an empty text.
    void setExplain(std::function<std::string(std::int32_t number)> explain) {
        explain_ = std::move(explain);
    }

  protected:
    /// Tells that a form has come up, the first time with all that it shows.
    void printShown(const forms::Form& form);
    /// Takes one line and lets a hand carry it out on the form.
    void performNext(forms::Form& form, Hand& hand);

  private:
    std::string nextLine(std::string_view waiting);
    /// Asks a person before a file is overwritten.
    bool mayOverwrite(const std::filesystem::path& path, forms::FileDialogMode mode);

    LineSource& source_;
    std::ostream& output_;
    std::function<std::string(std::int32_t)> explain_;
};

}  // namespace text_face
