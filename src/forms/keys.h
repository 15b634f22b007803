#pragma once

#include <optional>
#include <string_view>

namespace forms {

/// The keys that a dialog tells apart from typed text.
enum class Key { F1, Up, Down, PageUp, PageDown, Home, End, Tab, Space, Enter, Escape };

/// The key of a name such as "F1" or "DOWN", without regard to case.
std::optional<Key> keyFromName(std::string_view name);
const char* keyName(Key key);

}  // namespace forms
