#pragma once

#include "forms/form.h"
#include "session/session.h"

#include <cstdint>
#include <string>

namespace language {

/// Shows a dialog modally with fmOwner, the form that is never seen, as its owner.
void showOwned(session::Session& session, forms::Form& dialog);

/// Base of the add-in's dialogs.
class Dialog : public forms::Form {
  public:
    Dialog(session::Session& session, std::string name, std::string tag, std::string caption,
           int helpContextId = 0)
        : Form(std::move(name), std::move(tag), std::move(caption), helpContextId), session_(session) {}

  protected:
    /// F1: the help file at the topic, at its start page for 0.
    void Form_Help(int context) override;
    /// The message of that number in the current language.
    std::string message(std::int32_t id) const;
    /// Shows the dialog modally again, within the handler that hid it.
    void showAgain() { showOwned(session_, *this); }

    session::Session& session_;
};

}  // namespace language
