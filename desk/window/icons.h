#pragma once

#include "desk/window/theme.h"

#include <QIcon>
#include <QPixmap>
#include <QString>

namespace window {

/// An icon of resources/icons/window by name. Its neutral and orange strokes take the colours of the
/// application's palette when it is painted, so it follows the theme; disabled it stands at 38 %.
QIcon icon(const QString& name);

/// The same painted once, its neutral strokes in `pen`; a square of `size` logical pixels.
QPixmap iconPixmap(const QString& name, int size, qreal ratio, const QColor& pen, Scheme scheme);

}  // namespace window
