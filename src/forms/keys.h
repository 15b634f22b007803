#pragma once

#include <optional>
#include <string_view>

namespace forms {

/// The keys that a dialog tells apart from typed text. Character is any key that types: a list view hears it
/// too.
enum class Key { F1, Up, Down, PageUp, PageDown, Home, End, Tab, ShiftTab, Space, Enter, Escape, Character };

/// The key of a name such as "F1", "DOWN" or "SHIFT+TAB", without regard to case.
std::optional<Key> keyFromName(std::string_view name);

}  // namespace forms
