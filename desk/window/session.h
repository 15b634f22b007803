#pragma once

#include "desk/shell/desk.h"
#include "desk/window/dialog_watch.h"
#include "desk/window/line_stream.h"

#include <QObject>
#include <QString>
#include <memory>
#include <optional>
#include <vector>

namespace window {

/// The desk in a window: one command at a time, its lines told, and what it did to the drawing.
class Session : public QObject {
    Q_OBJECT

  public:
    /// Screen and prompter outlive the session. Raises what hinders the desk.
    Session(const shell::DeskOptions& options, DialogWatch& screen, model::Prompter& prompter,
            QObject* parent = nullptr);
    ~Session() override;

    bool hasDrawing() const { return desk_->hasDrawing(); }
    /// Only where there is one.
    drawing::Drawing& drawing() const { return desk_->document().drawing(); }
    bool hasUnsavedChanges() const { return desk_->hasUnsavedChanges(); }
    bool isRunning() const { return running_; }
    /// A Lisp expression waits for its other lines.
    bool isContinued() const { return !begun_.isEmpty(); }
    void dropContinued() { begun_.clear(); }
    /// The command that runs or ran last, as it was typed.
    const QString& lastLine() const { return lastLine_; }
    const QString& runningName() const { return runningName_; }

    /// Carries out a line of the command line; a second one while a command runs is told off.
    void run(const QString& line);
    /// What a Lisp expression or "!name" stands for as an answer to a prompt; nothing, and told why, where it
    /// can't be one.
    std::optional<QString> answerOf(const QString& expression);
    /// Raise basic::Error, and shell::UserBreak where the user gave up; all is then as before.
    void open(const QString& path);
    void save(const QString& path);
    QStringList commandNames() const;
    /// Keeps the copy for the next session up to date, at a moment when no work is going on.
    void keepCopy();
    /// Edits of the panels: one undo step of that name. Gives false, and tells why, where an edit was
    /// refused.
    bool edit(const QString& name, const std::function<void(drawing::Drawing&)>& change);
    bool undo();
    bool redo();
    /// References and other entities that the last command brought in.
    const std::vector<drawing::EntityId>& fresh() const { return fresh_; }
    /// What the command at hand brings in begins here.
    drawing::EntityId firstOfCommand() const { return firstOfCommand_; }
    void tell(const QString& line) { emit told(line); }

  signals:
    void told(const QString& line);
    void began(const QString& name);
    /// The command is over; the drawing may be another one.
    void ended(shell::Desk::Outcome outcome);
    /// Another drawing is open.
    void opened();
    /// The drawing's content, its path or its undo changed.
    void changed();

  private:
    void noteFresh();

    LineBuffer lines_;
    std::ostream output_;
    std::unique_ptr<shell::Desk> desk_;
    bool running_ = false;
    QString begun_;  ///< the lines of an incomplete Lisp expression
    QString lastLine_;
    QString runningName_;
    std::vector<drawing::EntityId> fresh_;
    drawing::EntityId firstOfCommand_ = 0;
};

}  // namespace window
