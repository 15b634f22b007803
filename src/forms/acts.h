#pragma once

#include "forms/form.h"
#include "forms/keys.h"

#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace forms {

class ListView;

/// An act that a user couldn't have done: on a control that is missing, hidden or disabled, or of a wrong
/// kind. It is no basic::Error, so no handler's regime swallows it.
class ActError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// The user's acts. Every face calls these and nothing else, so that all faces behave alike.
///
/// Each act tests that form, control and its containers are visible and enabled (ActError), moves the focus,
/// and runs the handlers under a guard: a basic::Error that leaves a handler is reported once through
/// Screen::reportFailure, and dialog and drawing stay as they are. Other exceptions pass.
namespace acts {

/// The control of that name; ActError if the form has none.
Control& controlNamed(Form& form, std::string_view name);

/// Presses a button, toggles a check box, turns an option on, clicks a label or a list view outside its rows;
/// gives the other controls the focus.
void click(Control& control);
/// Replaces the text of a text box or an editable combo.
void type(Control& control, std::string_view text);
/// Chooses the entry, or the row of a list view, with exactly this text.
void chooseText(Control& control, std::string_view text);
/// Chooses an entry as the control counts: lists and combos from 0, rows of a list view from 1.
void chooseIndex(Control& control, int index);
/// Starts to edit a row's text in place and enters `text`. Returns whether the dialog let the edit through.
bool editLabel(Control& control, int row, std::string_view text);
/// Presses a key in the control that has the focus.
void key(Form& form, Key key);
/// Gives a control the focus and presses a key in it.
void key(Control& control, Key key);
void resize(Form& form, Twips width, Twips height);
void move(Form& form, Twips left, Twips top);
/// The frame's close box, which unloads the form.
void closeBox(Form& form);

/// Runs `handler` under the guard.
void guarded(Screen& screen, const std::function<void()>& handler);

}  // namespace acts
}  // namespace forms
