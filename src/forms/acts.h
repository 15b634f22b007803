#pragma once

#include "basic/border.h"
#include "forms/form.h"
#include "forms/keys.h"

#include <functional>
#include <string>
#include <string_view>

namespace forms {

class ListView;

/// An act that a user couldn't have done: on a control that is missing, hidden or disabled, or of a wrong
/// kind. It is no basic::Error, so no handler's regime swallows it.
class ActError : public basic::Interruption {
  public:
    using Interruption::Interruption;
};

/// The user's acts. Every face calls these and nothing else, so that all faces behave alike.
///
/// Each act tests that form, control and its containers are visible and enabled (ActError), moves the focus,
/// and runs the handlers under a guard: a basic::Error that leaves a handler is reported once through
/// Screen::reportFailure, and dialog and drawing stay as they are, as does any other exception but a
/// basic::Interruption, which passes. A control that had the focus and was disabled or hidden by the act
/// passes it on in the order of the Tab key.
namespace acts {

/// Raises the ActError of an act on the control that a user couldn't do now: it must be drawn and not greyed.
void requireReachable(const Control& control);
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
/// Begins to edit a row's text in place, which the dialog may refuse: returns whether it let the edit
/// through.
bool beginEdit(Control& control, int row);
/// Ends the edit that is open with its text; ActError when none is. An edit given up needs no act.
void endEdit(Control& control, std::string_view text);
/// Gives a control the focus, as a click into a field does or the Tab key of a native dialog.
void focus(Control& control);
/// Presses a key in the control that has the focus: F1 asks for help, Tab goes on, Enter and Escape press
/// buttons, a list moves, an arrow turns the next option on, Space presses.
void key(Form& form, Key key);
/// Gives a control the focus and presses a key in it.
void key(Control& control, Key key);
/// The two halves of a key in a list view, for a face whose list moves by itself: the event before the move,
/// then the row where the list went, which raises nothing.
void keyDown(Control& control, Key key);
void moveSelection(Control& control, int row);
/// Alt and a letter: presses the button, check box or option that has it (forms/accelerators.h), or gives the
/// focus to the field of the label that has it. ActError for a letter that nothing on the form has.
void accelerator(Form& form, char letter);
/// The user's change of a column's width, in twips; columns count from 1.
void resizeColumn(Control& control, int column, Twips width);
void resize(Form& form, Twips width, Twips height);
void move(Form& form, Twips left, Twips top);
/// The frame's close box, which unloads the form.
void closeBox(Form& form);

/// Runs `handler` under the guard.
void guarded(Screen& screen, const std::function<void()>& handler);

}  // namespace acts
}  // namespace forms
