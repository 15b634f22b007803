#include "forms/keys.h"

#include "basic/text.h"

#include <array>

namespace forms {

namespace {

struct NamedKey {
    Key key;
    const char* name;
};
constexpr std::array kKeys = {
    NamedKey{Key::F1, "F1"},
    NamedKey{Key::Up, "UP"},
    NamedKey{Key::Down, "DOWN"},
    NamedKey{Key::PageUp, "PGUP"},
    NamedKey{Key::PageDown, "PGDN"},
    NamedKey{Key::Home, "HOME"},
    NamedKey{Key::End, "END"},
    NamedKey{Key::Tab, "TAB"},
    NamedKey{Key::ShiftTab, "SHIFT+TAB"},
    NamedKey{Key::Space, "SPACE"},
    NamedKey{Key::Enter, "ENTER"},
    NamedKey{Key::Escape, "ESC"},
    NamedKey{Key::Character, "CHARACTER"},
};

}  // namespace

std::optional<Key> keyFromName(std::string_view name) {
    for (const NamedKey& named : kKeys) {
        if (basic::equalIgnoringCase(named.name, name)) return named.key;
    }
    return std::nullopt;
}

}  // namespace forms
