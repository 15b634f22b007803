#pragma once

#include <QWidget>

class QHBoxLayout;
class QLabel;
class QToolButton;

namespace window {

/// The head of a panel, 30 high: title, count, tools at the right.
class PanelHead : public QWidget {
    Q_OBJECT

  public:
    explicit PanelHead(QWidget* parent = nullptr);
    void setTitle(const QString& title);
    void setCount(int count);
    /// A tool of 16 px; its tip is its name for a screen reader too.
    QToolButton* addTool(const QString& icon);

  private:
    QHBoxLayout* row_;
    QLabel* title_;
    QLabel* count_;
};

/// Text at half size steps: the second line of a row, captions.
QFont smallFont(const QFont& font);
/// The desktop's fixed font at the size of `font`: figures in columns.
QFont fixedFont(const QFont& font);

void setTip(QToolButton* button, const QString& tip);

}  // namespace window
