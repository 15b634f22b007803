#pragma once

#include "forms/buttons.h"
#include "forms/containers.h"
#include "forms/file_dialog.h"
#include "forms/form.h"
#include "forms/list_view.h"
#include "forms/lists.h"
#include "forms/text_box.h"

// All kinds of controls, for a dialog's header.
//
// Who raises what. "Code" is an assignment from code, which raises an event only when it changes something
// and runs the handler before the assignment returns, so that the handler's failure is the assignment's.
// "User" is an act of forms/acts.h. Nothing is raised before the form is initialised, nor while an unload
// brings the design back.
//
//   control              code                                        user
//   Label                nothing                                     click: Click
//   Button               nothing                                     press: Click
//   CheckBox             value: Click                                toggle: Click
//   OptionButton         value on: Click                             turn on: Click; already on: nothing
//                        value off, others of its group turned off: nothing
//   TextBox              text: Change                                type: Change, if the text differs
//   ListBox              listIndex: Click; selected on: Click,       choose: Click, also the current entry
//                        also the current entry
//                        listIndex -1, selected off, clear: nothing
//   ComboBox, editable   text: Change                                type: Change, if the text differs
//                        listIndex, also -1: Click, no Change        choose: Click, also the current entry
//                        clear: nothing
//   ComboBox, list only  text, listIndex: Click                      choose: Click, also the current entry
//                        listIndex -1, clear: nothing
//   ListView             nothing                                     row: ItemClick, Click; beside the rows:
//                                                                    Click;
//                                                                    key: KeyDown, then the selection moves
//                                                                    without an event;
//                                                                    edit begun: BeforeLabelEdit(cancel);
//                                                                    edit ended, column widened: nothing
//   Form                 size: Form_Resize                           resize: Form_Resize
