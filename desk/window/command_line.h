#pragma once

#include <QStringList>
#include <QWidget>

class QFrame;
class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;

namespace window {

/// The command line below the drawing: the last lines of the session, and the input with history and
/// completion. It knows no command: a line that was entered is a signal.
class CommandLine : public QWidget {
    Q_OBJECT

  public:
    explicit CommandLine(QWidget* parent = nullptr);

    /// Words that completion offers, in capitals.
    void setWords(const QStringList& words);
    /// Words behind which Space is a blank: a path or an answer of several parts follows.
    void setArgumentWords(const QStringList& words) { argumentWords_ = words; }
    /// A line of the session.
    void tell(const QString& line);
    /// The prompt in front of the input, and what stands in the empty input.
    void setPrompt(const QString& prompt, const QString& hint);
    /// While no command can be begun the line shows why and takes nothing.
    void setBlocked(bool blocked, const QString& why = {});
    /// Letters typed elsewhere: they go to the input, which gets the focus.
    void type(const QString& text);
    QString text() const;
    void clear();
    void focusInput();
    bool hasInputFocus() const;
    /// Lets the history take `lines` lines.
    void setHistoryLines(int lines);
    QString historyText() const;

  signals:
    /// Enter, or Space; an empty line too.
    void lineEntered(const QString& line);
    /// Esc in an empty input.
    void brokenOff();
    void textChanged(const QString& text);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    bool keyPressed(int key, Qt::KeyboardModifiers modifiers);
    void enter();
    void recall(int step);
    void offer();
    void takeOffered();
    void paste(const QString& text);

    QPlainTextEdit* history_;
    QFrame* frame_;
    QLabel* sign_;
    QLabel* prompt_;
    QLineEdit* input_;
    QListWidget* offered_;
    QStringList words_;
    QStringList argumentWords_;
    QStringList entered_;
    int recalled_ = -1;  ///< index in entered_, -1 at the new line
    QString unfinished_;
};

}  // namespace window
