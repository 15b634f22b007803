#pragma once

#include <QEvent>

namespace qt_face {

/// Whether an event is what a user does with mouse, keys or pen.
inline bool isInput(QEvent::Type type) {
    switch (type) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::Wheel:
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::Shortcut:
        case QEvent::ShortcutOverride:
        case QEvent::ContextMenu:
        case QEvent::TouchBegin:
        case QEvent::TabletPress:
        case QEvent::Drop:
            return true;
        default:
            return false;
    }
}

}  // namespace qt_face
