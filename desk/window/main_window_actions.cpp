#include "basic/text.h"
#include "desk/window/blocks_panel.h"
#include "desk/window/color_choice.h"
#include "desk/window/command_line.h"
#include "desk/window/drawing_lists.h"
#include "desk/window/files.h"
#include "desk/window/job_view.h"
#include "desk/window/layers_panel.h"
#include "desk/window/main_window.h"
#include "desk/window/parts.h"
#include "desk/window/properties_panel.h"
#include "desk/window/status_line.h"

#include <QAction>
#include <QSettings>
#include <algorithm>
#include <unordered_set>

namespace window {

namespace {

const Command* commandNamed(const QString& name) {
    const auto* found = std::find_if(commandsBegin(), commandsEnd(),
                                     [&name](const Command& command) { return name == command.name; });
    return found == commandsEnd() || name.isEmpty() ? nullptr : found;
}

/// What Lisp and the host carry out; the window adds its own names.
bool isOfDesk(const Command& command) {
    const QString id = command.id;
    return command.menu == Menu::Blocks || id == "help" || id == "about";
}

}  // namespace

/// One line for a command however it was begun: from a menu it is echoed as it could be typed.
void MainWindow::runCommand(const QString& line) {
    const QString text = line.trimmed();
    if (text.isEmpty()) {
        // Space or Enter repeats, but never something that closes or replaces the drawing.
        if (session_->isContinued() || session_->lastLine().isEmpty()) return;
        return runCommand(session_->lastLine());
    }
    const QString word = text.section(' ', 0, 0).toUpper();
    commandLine_->tell((session_->isContinued() ? "(_> " : tr("Command:") + " ") + text);
    const Command* known = session_->isContinued() ? nullptr : commandNamed(word);
    if (known != nullptr && !isOfDesk(*known) && !text.contains(' ')) {
        if (!actions_[known->id]->isEnabled()) {
            session_->tell(tr("%1 can't be done now.").arg(word));
            return;
        }
        trigger(known->id);
        return;
    }
    if (word == "OPEN" || word == "SAVE" || word == "SAVEAS") {
        const QString path = text.section(' ', 1).trimmed();
        if (word == "OPEN" && files_->mayLeave()) files_->open(path);
        if (word != "OPEN") files_->saveTo(path);
        return;
    }
    session_->run(text);
}

void MainWindow::trigger(const QString& id) {
    const Command* command =
        std::find_if(commandsBegin(), commandsEnd(), [&id](const Command& one) { return id == one.id; });
    if (command == commandsEnd()) return;
    if (isBlocked() && !command->aliveInJob) return;
    if (isOfDesk(*command)) return runCommand(command->name);
    if (id == "open") {
        files_->openAsked();
    } else if (id == "save") {
        files_->save();
    } else if (id == "saveAs") {
        files_->saveAs();
    } else if (id == "quit") {
        close();
    } else if (id == "undo") {
        session_->undo();
    } else if (id == "redo") {
        session_->redo();
    } else if (id == "erase") {
        eraseSelection();
    } else if (id == "find") {
        actions_["blocks"]->setChecked(true);
        leftUnfolded_ = true;
        layOutDocks();
        blocks_->focusSearch();
    } else if (command->menu == Menu::Select) {
        selectCommand(id);
    } else {
        viewCommand(id);
    }
}

void MainWindow::viewCommand(const QString& id) {
    if (id == "zoomAll") canvas_->zoomAll();
    if (id == "zoomWindow") canvas_->zoomWindow();
    if (id == "zoomPrevious") canvas_->zoomPrevious();
    if (id == "zoomSelection") canvas_->zoomTo(canvas_->selection());
    if (id == "lightDark") {
        settings_.setValue("scheme", scheme_ == Scheme::Dark ? "light" : "dark");
        applyScheme();
    } else if (id == "lightDarkCanvas") {
        settings_.setValue("canvasScheme", canvasScheme_ == Scheme::Dark ? "light" : "dark");
        applyScheme();
    } else if (id == "nextPart") {
        focusNextPart();
    } else if (actions_[id]->isCheckable()) {
        actions_[id]->toggle();
    }
}

void MainWindow::selectCommand(const QString& id) {
    const drawing::Drawing& open = session_->drawing();
    std::vector<drawing::EntityId> chosen;
    const std::vector<drawing::EntityId> before = canvas_->selection();
    const auto everything = [&] {
        std::vector<drawing::EntityId> all;
        open.forEachEntity(canvas_->space(), [&](drawing::EntityId entity) {
            if (open.isDisplayed(entity)) all.push_back(entity);
            return true;
        });
        return all;
    };
    if (id == "selectAll") chosen = everything();
    if (id == "selectPrevious") {
        chosen = previousSelection_;
        std::erase_if(chosen, [&open](drawing::EntityId entity) { return open.isErased(entity); });
    }
    if (id == "selectInvert") {
        const std::unordered_set<drawing::EntityId> out(before.begin(), before.end());
        chosen = everything();
        std::erase_if(chosen, [&out](drawing::EntityId entity) { return out.contains(entity); });
    }
    if (id == "selectSame") {
        std::unordered_set<std::string> names;
        for (const drawing::EntityId entity : before) {
            if (open.type(entity) != "INSERT" || !names.insert(open.name(entity)).second) continue;
            const auto found = referencesOf(open, open.name(entity));
            chosen.insert(chosen.end(), found.begin(), found.end());
        }
        // Those of other spaces can't be seen here.
        std::erase_if(chosen,
                      [&](drawing::EntityId entity) { return open.owner(entity) != canvas_->space(); });
    }
    canvas_->setSelection(std::move(chosen));
    selectionChanged();
    if (canvas_->selection().empty()) status_->showResult(tr("Nothing selected"));
}

void MainWindow::eraseSelection() {
    const std::vector<drawing::EntityId> selected = canvas_->selection();
    if (selected.empty()) return;
    session_->edit(tr("Erasure of %n entities", nullptr, static_cast<int>(selected.size())),
                   [&selected](drawing::Drawing& drawing) {
                       for (const drawing::EntityId entity : selected) drawing.erase(entity);
                   });
}

void MainWindow::changeLayer(LayerAct act, const QString& layer) {
    const std::string name = layer.toStdString();
    const auto rows = layerRows(session_->drawing());
    const auto row =
        std::find_if(rows.begin(), rows.end(), [&](const LayerRow& one) { return one.name == name; });
    if (row == rows.end() || isBlocked()) return;
    drawing::LayerState state{row->color, row->on, row->frozen, row->locked};
    QString step;
    switch (act) {
        case LayerAct::MakeCurrent:
            if (row->current) return;
            if (row->frozen) return session_->tell(tr("A frozen layer can't be the current one."));
            session_->edit(tr("Current layer %1").arg(layer),
                           [&name](drawing::Drawing& drawing) { drawing.setCurrentLayer(name); });
            return;
        case LayerAct::SwitchOn:
            state.on = !state.on;
            step = state.on ? tr("Layer %1 on") : tr("Layer %1 off");
            break;
        case LayerAct::Freeze:
            if (row->current) return session_->tell(tr("The current layer can't be frozen."));
            state.frozen = !state.frozen;
            step = state.frozen ? tr("Layer %1 frozen") : tr("Layer %1 thawed");
            break;
        case LayerAct::Lock:
            state.locked = !state.locked;
            step = state.locked ? tr("Layer %1 locked") : tr("Layer %1 unlocked");
            break;
        case LayerAct::ChooseColor:
            const auto chosen = chooseColor(this, state.color, false, scheme_);
            if (!chosen || *chosen == state.color) return;
            state.color = *chosen;
            step = tr("Colour of layer %1");
            break;
    }
    session_->edit(step.arg(layer), [&](drawing::Drawing& drawing) { drawing.setLayerState(name, state); });
}

void MainWindow::blockJob(const QString& command, const QString& block) {
    if (isBlocked() || !session_->hasDrawing()) return;
    if (command != "SHOW") {
        jobs_->prefill(command, block);
        runCommand(command);
        return;
    }
    const drawing::Drawing& open = session_->drawing();
    std::vector<drawing::EntityId> found = referencesOf(open, block.toStdString());
    std::erase_if(found, [&](drawing::EntityId entity) { return open.owner(entity) != canvas_->space(); });
    canvas_->setSelection(found);
    selectionChanged();
    if (found.empty()) {
        status_->showResult(tr("%1 has no references here").arg(block));
    } else {
        canvas_->zoomTo(found);
    }
}

/// Esc: what is typed first, then the prompt, then the selection.
void MainWindow::escape() {
    if (prompter_->isAsking()) return prompter_->breakOff();
    if (session_->isContinued()) {
        session_->dropContinued();
        updatePrompt();
        return;
    }
    canvas_->setSelection({});
    selectionChanged();
    canvas_->setFocus();
}

}  // namespace window
