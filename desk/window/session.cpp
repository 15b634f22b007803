#include "desk/window/session.h"

#include "basic/error.h"
#include "desk/window/desk_texts.h"
#include "faces/qt/qt_text.h"

#include <exception>

namespace window {

using Outcome = shell::Desk::Outcome;

Session::Session(const shell::DeskOptions& options, DialogWatch& screen, model::Prompter& prompter,
                 QObject* parent)
    : QObject(parent),
      lines_([this](const std::string& line) { emit told(deskText(qt_face::toShown(line))); }),
      output_(&lines_) {
    desk_ = std::make_unique<shell::Desk>(options, screen, prompter, output_);
}

Session::~Session() = default;

void Session::run(const QString& line) {
    const QString text = line.trimmed();
    if (running_) {
        emit told(tr("%1 is still running.").arg(runningName_));
        return;
    }
    if (text.isEmpty()) return;
    if (begun_.isEmpty()) lastLine_ = text;
    const QString whole = begun_.isEmpty() ? text : begun_ + "\n" + text;
    begun_.clear();
    runningName_ = whole.section(' ', 0, 0).toUpper();
    running_ = true;
    emit began(runningName_);

    const model::Document* const before = hasDrawing() ? &desk_->document() : nullptr;
    firstOfCommand_ = hasDrawing() ? drawing().firstFree() : 0;
    Outcome outcome = Outcome::Failed;
    try {
        outcome = desk_->run(whole.toStdString());
    } catch (const std::exception& failure) {
        emit told(tr("The command failed: %1").arg(qt_face::toShown(failure.what())));
    }
    lines_.finishLine();
    if (outcome == Outcome::Incomplete) begun_ = whole;
    running_ = false;
    fresh_.clear();
    const bool isOther = before != (hasDrawing() ? &desk_->document() : nullptr);
    if (isOther) {
        emit opened();
    } else if (hasDrawing()) {
        noteFresh();
    }
    emit ended(outcome);
    emit changed();
}

std::optional<QString> Session::answerOf(const QString& expression) {
    try {
        return QString::fromStdString(desk_->answerOf(expression.toStdString()));
    } catch (const std::exception& failure) {
        const auto* error = dynamic_cast<const basic::Error*>(&failure);
        const std::string why = error != nullptr ? error->description() : std::string(failure.what());
        emit told(QString("\"%1\": %2").arg(expression, QString::fromStdString(why)));
        return std::nullopt;
    }
}

void Session::noteFresh() {
    const drawing::Drawing& now = drawing();
    for (drawing::EntityId id = firstOfCommand_; id < now.firstFree(); ++id) {
        if (now.isErased(id) || now.mainEntity(id) != id) continue;
        const drawing::BlockId owner = now.owner(id);
        if (owner != drawing::kNoBlock && now.blocks()[owner].isLayout()) fresh_.push_back(id);
    }
}

QStringList Session::commandNames() const {
    QStringList names;
    for (const std::string& name : desk_->commandNames()) names.append(QString::fromStdString(name));
    return names;
}

void Session::open(const QString& path) {
    desk_->open(path.toStdString());
    lines_.finishLine();
    fresh_.clear();
    emit opened();
    emit changed();
}

void Session::save(const QString& path) {
    desk_->save(path.toStdString());
    lines_.finishLine();
    emit changed();
}

void Session::keepCopy() { desk_->keepCopy(); }

bool Session::edit(const QString& name, const std::function<void(drawing::Drawing&)>& change) {
    if (!hasDrawing() || running_) return false;
    bool done = true;
    const std::uint64_t before = drawing().revision();
    {
        const drawing::UndoStep step(drawing(), name.toStdString());
        try {
            change(drawing());
        } catch (const basic::Error& error) {
            emit told(tr("Not changed: %1").arg(qt_face::toShown(error.description())));
            done = false;
        }
    }
    // What a failed edit had done to the entities before is taken back.
    if (!done && drawing().revision() != before) desk_->document().undo();
    desk_->keepCopy();
    emit changed();
    return done;
}

bool Session::undo() {
    if (running_ || !hasDrawing()) return false;
    const QString name = qt_face::toShown(drawing().undoName());
    const bool done = desk_->document().undo();
    emit told(done ? tr("Undone: %1").arg(name) : tr("Nothing to undo"));
    fresh_.clear();
    desk_->keepCopy();
    emit changed();
    return done;
}

bool Session::redo() {
    if (running_ || !hasDrawing()) return false;
    const QString name = qt_face::toShown(drawing().redoName());
    const bool done = desk_->document().redo();
    emit told(done ? tr("Redone: %1").arg(name) : tr("Nothing to redo"));
    fresh_.clear();
    desk_->keepCopy();
    emit changed();
    return done;
}

}  // namespace window
