#pragma once

#include <QStringList>
#include <QVector>
#include <QWidget>

class QFrame;
class QHBoxLayout;
class QKeyEvent;
class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;

namespace window {

/// An answer that a prompt offers: its name, and what is typed for it.
struct PromptOption {
    QString name;
    QString answer;
};

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
    /// A question: its options stand behind it as links, and `hint` at the right.
    void ask(const QString& question, const QVector<PromptOption>& options, const QString& hint);
    /// While no command can be begun the line shows why and takes nothing.
    void setBlocked(bool blocked, const QString& why = {});
    /// Letters typed elsewhere: they go to the input, which gets the focus.
    void type(const QString& text);
    /// A key that was pressed elsewhere and acts on what is typed.
    void pass(const QKeyEvent& key);
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
    void resizeEvent(QResizeEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    void addOption(const QString& sign, const PromptOption& option);
    void fitHint();
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
    QWidget* options_;
    QHBoxLayout* optionRow_;
    QLineEdit* input_;
    QLabel* hint_;
    QListWidget* offered_;
    QStringList words_;
    QStringList argumentWords_;
    QStringList entered_;
    int recalled_ = -1;  ///< index in entered_, -1 at the new line
    QString unfinished_;
};

}  // namespace window
