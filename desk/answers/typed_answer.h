#pragma once

#include "desk/drawing/ids.h"
#include "desk/geometry/vector.h"

#include <optional>
#include <string_view>
#include <vector>

namespace answers {

// Answers to the host's prompts as they are written on a command line. Numbers have a decimal point whatever
// the regional settings. Each gives nothing for a text of another form.

/// "x,y", "x,y,z", or with "@" in front relative to `base` (relative to the origin where there is none).
std::optional<geometry::Point3> parsePoint(std::string_view text,
                                           const std::optional<geometry::Point3>& base);
/// An angle in degrees as radians.
std::optional<double> parseDegrees(std::string_view text);
/// "@" and hexadecimal digits: an entity by its handle.
std::optional<drawing::Handle> parseHandleAnswer(std::string_view text);
/// The words of a line.
std::vector<std::string_view> words(std::string_view line);

}  // namespace answers
