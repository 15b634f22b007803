#pragma once

#include <QLineEdit>

namespace window {

/// A value that looks like text until the mouse or the focus is on it.
class PropertyField : public QLineEdit {
    Q_OBJECT

  public:
    explicit PropertyField(const QString& value, QWidget* parent = nullptr);
    /// Shows another value as the one that Esc gives back.
    void setValue(const QString& value);
    const QString& value() const { return value_; }

  signals:
    /// Enter or leaving with another text than before.
    void taken(const QString& text);

  protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

  private:
    void take();

    QString value_;
};

}  // namespace window
