#pragma once

#include "forms/form.h"

#include <string>
#include <string_view>
#include <vector>

namespace text_face {

/// The control that a user means: by name without regard to case, else by a caption that only one control in
/// sight has (accelerator marks and a colon at the end don't count). Raises forms::ActError that names the
/// controls nearest to it and says how to go on.
forms::Control& controlMeant(forms::Form& form, std::string_view text);

/// Those of `names` that resemble `text` most, the nearest first; at most three, none that differs too much.
std::vector<std::string> nearNames(std::string_view text, const std::vector<std::string>& names);
/// " (near: A, B)", or nothing.
std::string nearText(std::string_view text, const std::vector<std::string>& names);

/// The names of the controls that a user can act on now.
std::vector<std::string> reachableNames(const forms::Form& form);

/// A caption as it is read: without accelerator marks, blanks and a colon at the end.
std::string readCaption(std::string_view caption);

}  // namespace text_face
