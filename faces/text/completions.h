#pragma once

#include "forms/form.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace text_face {

// What a person at a terminal could mean who has typed the beginning of a line, as whole lines.

/// Acts on a dialog: controls by name and caption, entries behind an operator, and the dialog's own acts.
std::vector<std::string> actCompletions(const forms::Form& form, std::string_view beginning);
/// `before` with the files and folders that the rest of the line begins to name. A file has to have one of
/// the extensions (".dxf"), all count where there are none.
std::vector<std::string> fileCompletions(std::string_view before, std::string_view rest,
                                         const std::vector<std::string>& extensions);

/// A path with the user's own folder in place of a "~" at its start.
std::filesystem::path expandHome(const std::string& path);

}  // namespace text_face
