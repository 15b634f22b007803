#pragma once

#include <QWidget>
#include <vector>

class QHBoxLayout;
class QLabel;
class QPushButton;
class QTabBar;
class QToolButton;

namespace window {

/// The line at the window's foot: tabs of model space and layouts, what the last command did with its links,
/// what isn't seen, coordinates, and the switches of the drawing.
class StatusLine : public QWidget {
    Q_OBJECT

  public:
    explicit StatusLine(QWidget* parent = nullptr);

    void setTabs(const QStringList& names, int current);
    enum class Tone { Plain, Done, Failed };
    /// What was done, with a link each: the text stands until the next.
    void showResult(const QString& text, Tone tone = Tone::Plain, const QStringList& links = {});
    /// A hint for as long as the mouse is on a menu's entry; empty ends it.
    void showHint(const QString& text);
    void showCounts(std::size_t notDrawn, std::size_t hidden);
    void showCursor(double x, double y);
    void setSwitches(bool snap, bool ortho, bool weights);
    void setBlocked(bool blocked);
    /// What takes more than a second: text, share done (below 0: not known) and a button that gives up.
    void showWork(const QString& text, double share, bool canCancel);
    void endWork();
    void retranslate();
    QString resultText() const;
    QObject* cancelButton() const;

  signals:
    void tabChosen(int index);
    void linkClicked(int index);
    void snapToggled(bool on);
    void orthoToggled(bool on);
    void weightsToggled(bool on);
    void cancelAsked();

  private:
    QToolButton* addSwitch(void (StatusLine::*signal)(bool));

    QTabBar* tabs_;
    QLabel* result_;
    std::vector<QPushButton*> links_;
    QHBoxLayout* linkRow_;
    QPushButton* cancel_;
    QLabel* counts_;
    QLabel* cursor_;
    QToolButton* snap_;
    QToolButton* ortho_;
    QToolButton* weights_;
    QString text_;
    Tone tone_ = Tone::Plain;
    std::size_t notDrawn_ = 0;
    std::size_t hidden_ = 0;
};

}  // namespace window
