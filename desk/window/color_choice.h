#pragma once

#include "desk/window/theme.h"

#include <QColor>
#include <QString>
#include <optional>

class QWidget;

namespace window {

/// A colour number of group 62 in words: "Red", "By layer", "Colour 34".
QString colorName(int index);
/// A colour number as a swatch shows it: 7 is white on dark, black on light.
QColor swatchColor(int index, Scheme scheme);
/// Lets the user choose a number: the named ones, the palette of 255, and with `byLayer` the two that follow
/// something else. Nothing when the choice was given up.
std::optional<int> chooseColor(QWidget* parent, int current, bool byLayer, Scheme scheme);

}  // namespace window
