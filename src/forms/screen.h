#pragma once

#include "forms/change.h"

#include <cstdint>
#include <optional>
#include <string>

namespace forms {

class Control;
class FileDialog;
class Form;

/// What a message box says and asks.
struct MessageDialog {
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
/// does into the acts of forms/acts.h, and draws anew what changed. A face that keeps a drawn state draws a
/// form whole in runModal, and from then on knows of every difference by `changed`; it may gather the changes
/// and draw them once, at the latest before the user sees the form again: at the end of an act and before a
/// box or another form comes up.
///
/// One thread: forms, host and drawing are touched only by the thread that shows the dialogs; a worker gets
/// copies.
class Screen {
  public:
    virtual ~Screen() = default;

    /// Draws a form, which is visible and has been activated, and runs acts on it until the form isn't
    /// visible any more. Shows nest: the same form may be hidden and shown again inside an act.
    virtual void runModal(Form& form) = 0;
    /// The form was hidden or unloaded.
    virtual void hidden(Form& form) = 0;
    /// Something of a form that is up changed, or of a control of it. Told after the model has changed and
    /// before the event is raised.
    virtual void changed(Form& form, Change change) = 0;
    virtual void changed(Control& control, Change change) = 0;

    virtual Answer messageBox(const MessageDialog& box) = 0;
    /// The path that the user chose, or nothing when the dialog was cancelled.
    virtual std::optional<std::string> fileDialog(const FileDialog& dialog, FileDialogMode mode) = 0;
    /// The last-resort report of a failure that left an event handler.
    virtual void reportFailure(std::int32_t number, const std::string& description) = 0;
};

}  // namespace forms
