#include "desk/window/property_field.h"

#include <QKeyEvent>

namespace window {

PropertyField::PropertyField(const QString& value, QWidget* parent) : QLineEdit(parent), value_(value) {
    setObjectName("propertyField");
    setText(value);
    setCursorPosition(0);
    setFixedHeight(26);
}

void PropertyField::setValue(const QString& value) {
    value_ = value;
    setText(value);
}

void PropertyField::take() {
    if (text() == value_) return;
    value_ = text();
    emit taken(value_);
}

/// With nothing typed in it, undo and redo are the drawing's.
bool PropertyField::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && text() == value_) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo)) {
            event->ignore();
            return false;
        }
    }
    return QLineEdit::event(event);
}

void PropertyField::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && text() != value_) {
        setText(value_);
        selectAll();
        return;
    }
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return take();
    QLineEdit::keyPressEvent(event);
}

void PropertyField::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    if (event->reason() != Qt::PopupFocusReason) selectAll();
}

void PropertyField::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason) take();
}

}  // namespace window
