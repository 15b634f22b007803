#pragma once

#include "forms/control.h"

#include <string>
#include <vector>

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

namespace stand_in {

// What can be read off native windows.

std::string textOf(HWND window);
std::string classOf(HWND window);
/// The name of a dialog or a control, which the face leaves on the window; empty for a foreign window.
std::string nameOf(HWND window);
/// The model's kind of a native control.
forms::Kind kindOf(HWND control);
/// A form's controls in the order of its model.
std::vector<HWND> controlsOf(HWND form);
/// Raises forms::ActError where the form has no such control.
HWND controlNamed(HWND form, const std::string& name);

/// The text of a control's tool tip; empty for none.
std::string toolTipOf(HWND form, HWND control);

bool isForm(HWND window);
/// A message box or a file dialog of the system.
bool isBox(HWND window);
/// The dialog of this thread that takes input now; null for none.
HWND topDialog();

bool isEditableCombo(HWND control);
/// The edit field of an editable combo box, or the control itself.
HWND fieldOf(HWND control);

/// Entries of a list box or a combo box, the rows' cells and the columns of a list view.
std::vector<std::string> entriesOf(HWND list);
std::string cellOf(HWND view, int row, int column);
int rowCount(HWND view);
int columnCount(HWND view);
std::string columnText(HWND view, int column);
int columnWidth(HWND view, int column);

}  // namespace stand_in
