#pragma once

#include <QString>

namespace window {

/// A line or question of the desk's commands, which speak English, in the window's language. What isn't known
/// stays as it is.
QString deskText(const QString& line);

}  // namespace window
