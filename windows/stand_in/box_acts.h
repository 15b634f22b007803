#pragma once

#include "windows/stand_in/native.h"

#include <filesystem>
#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>

namespace stand_in {

/// Whether a system dialog is a file dialog; else it is a message box.
bool isFileDialog(HWND box);
/// Whether a message box is the face's report of a failure that left a handler.
bool isFailureReport(HWND box);

/// The text of a message box that warns and asks nothing: something went wrong. Nothing for any other box.
std::optional<std::string> warning(HWND box);

/// Prints a box as the text face does.
void printBox(std::ostream& output, HWND box);
/// Prints a failure as the text face does, and dismisses the box. Gives the failure's text.
std::string passFailure(std::ostream& output, HWND box);
/// Answers a box: ok, cancel, yes, no; "file PATH", a relative path counting from `folder`: a file dialog may
/// change the current folder while it is up. Raises
/// forms::ActError for an answer that the box doesn't offer.
void answerBox(HWND box, std::string_view answer, const std::filesystem::path& folder);

}  // namespace stand_in
