#pragma once

#include <QColor>
#include <QPalette>
#include <QString>

namespace window {

/// The colours of the window and the drawing, each with one meaning: blue is chosen now, orange is to come
/// and a base point, green is crossing and snaps, red failed.
enum class Token {
    Canvas,
    Base,
    Raised,
    Field,
    Hairline,
    Border,
    Text,
    Text2,
    Disabled,
    Accent,
    OnAccent,
    AccentQuiet,
    Select,
    Hover,
    Preview,
    Snap,
    Window,
    Crossing,
    Warn,
    Error,
    Ok,
};
inline constexpr int kTokenCount = 21;

enum class Scheme { Dark, Light };

/// The one table of colours that palette, style sheet and painters read.
QColor color(Token token, Scheme scheme);
/// The token's name in the table, "accent-quiet".
const char* tokenName(Token token);

QPalette themePalette(Scheme scheme);
/// The style sheet over Fusion: edges, radius, focus ring, tabs, tools.
QString themeStyleSheet(Scheme scheme);

/// What the desktop's own palette says; asked before ours is set.
Scheme schemeOf(const QPalette& desktop);

}  // namespace window
