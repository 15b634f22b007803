#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace forms {

class Control;
class FileDialog;
class Form;

struct MessageBox {
    enum class Buttons { Ok, OkCancel, YesNo };
    enum class Icon { None = 0, Exclamation = 48, Information = 64 };

    std::string text;
    std::string title;
    Buttons buttons = Buttons::Ok;
    Icon icon = Icon::None;
};

enum class Answer { Ok = 1, Cancel = 2, Yes = 6, No = 7 };

enum class FileDialogMode { Open, Save };

/// What a face does for the dialogs. It holds no state of a dialog: it draws the model, turns what the user
/// does into the acts of forms/acts.h, and draws anew what changed.
class Screen {
  public:
    virtual ~Screen() = default;

    /// Draws a form, which is visible and has been activated, and runs acts on it until the form isn't
    /// visible any more. Shows nest: the same form may be hidden and shown again inside an act.
    virtual void runModal(Form& form) = 0;
    /// The form was hidden or unloaded.
    virtual void hidden(Form& form) = 0;
    /// Something of a form that is up changed: caption, place, size; or a control of it.
    virtual void changed(Form& form) = 0;
    virtual void changed(Control& control) = 0;

    virtual Answer messageBox(const MessageBox& box) = 0;
    /// The path that the user chose, or nothing when the dialog was cancelled.
    virtual std::optional<std::string> fileDialog(const FileDialog& dialog, FileDialogMode mode) = 0;
    /// The last-resort report of a failure that left an event handler.
    virtual void reportFailure(std::int32_t number, const std::string& description) = 0;
    /// Opens the help at a topic, or at its start page for context 0.
    virtual void showHelp(int context) = 0;
};

}  // namespace forms
