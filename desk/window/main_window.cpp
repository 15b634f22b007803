#include "desk/window/main_window.h"

#include "basic/error.h"
#include "desk/picture/picture.h"
#include "desk/window/blocks_panel.h"
#include "desk/window/command_line.h"
#include "desk/window/desk_texts.h"
#include "desk/window/files.h"
#include "desk/window/help_window.h"
#include "desk/window/job_page.h"
#include "desk/window/job_view.h"
#include "desk/window/layers_panel.h"
#include "desk/window/parts.h"
#include "desk/window/properties_panel.h"
#include "desk/window/run_watch.h"
#include "desk/window/status_line.h"
#include "faces/qt/qt_text.h"
#include "forms/form.h"

#include <QAction>
#include <QCloseEvent>
#include <QMessageBox>
#include <QMimeData>
#include <QScreen>
#include <QSettings>
#include <QStackedWidget>
#include <QTimer>
#include <algorithm>

namespace window {

namespace {

constexpr int kKeepCopyEvery = 5'000;  // ms
constexpr QSize kRoomForFrame{8, 40};

}  // namespace

MainWindow::MainWindow(const shell::DeskOptions& options, const MakeFace& face, QSettings& settings,
                       Scheme desktop)
    : options_(options), settings_(settings), desktop_(desktop) {
    setObjectName("mainWindow");
    setAcceptDrops(true);
    setMinimumSize(640, 420);
    resize(QSize(1600, 1000).boundedTo(screen()->availableSize() - kRoomForFrame));
    build();
    face_ = face(*this);
    watch_ = new DialogWatch(*face_, this);
    prompter_ = new CanvasPrompter(*canvas_, *commandLine_, this);
    work_ = new RunWatch(*busy_, *status_, this);
    options_.watch = [this] { work_->breathe(); };
    options_.aside = [this](const std::string& path, std::function<void()> reading) {
        files_->readAside(QString::fromStdString(path), std::move(reading));
    };
    options_.showPage = [this](const std::filesystem::path& page) {
        showHelp(page);
        return true;
    };
    options_.readied = picture::prepare;
    options_.confirm = [this](const std::string& question) {
        return files_->confirm(deskText(qt_face::toShown(question)));
    };
    session_ = new Session(options_, *watch_, *prompter_, this);
    files_ = new Files(*this, *session_, *busy_, *status_, *notice_, settings_);
    jobs_ = new JobView(*session_, *watch_, *canvas_, *prompter_, options_.regional, this);
    work_->setShare([this] { return jobs_->share(); });
    connectParts();
    connectSession();
    // What a command that waits for its user has done so far must survive too.
    auto* keeping = new QTimer(this);
    connect(keeping, &QTimer::timeout, this, [this] {
        if (!work_->isInside()) session_->keepCopy();
    });
    keeping->start(kKeepCopyEvery);
    restoreState();
    applyLanguage();
    applyScheme();
    drawingOpened();
}

MainWindow::~MainWindow() {
    // The session speaks to the parts until its end.
    delete session_;
}

const drawing::Drawing* MainWindow::drawing() const {
    return session_->hasDrawing() ? &session_->drawing() : nullptr;
}

QString MainWindow::faultOf(const forms::Control& table, int row) const { return jobs_->faultOf(table, row); }

void MainWindow::showHelp(const std::filesystem::path& page) {
    if (help_ == nullptr) help_ = new HelpWindow(this);
    help_->showPage(QString::fromStdString(page.string()));
}

bool MainWindow::isBlocked() const { return session_->isRunning() || files_->isReading(); }

void MainWindow::open(const QString& path) { files_->open(path); }

void MainWindow::enterLine(const QString& line) {
    if (prompter_->isAsking()) {
        // What Lisp gives is the answer.
        const bool isLisp = line.startsWith('(') || line.startsWith('!');
        if (const auto answer = isLisp ? session_->answerOf(line) : line) prompter_->answer(*answer);
    } else {
        runCommand(line);
    }
}

void MainWindow::updateTitle() {
    const QString name = files_->shownName();
    const QString mark = session_->hasUnsavedChanges() ? QString::fromUtf8("● ") : QString();
    setWindowTitle(name.isEmpty() ? QString("Vorlane") : mark + name + QString::fromUtf8(" — Vorlane"));
}

void MainWindow::updateActions() {
    const bool free = !isBlocked();
    const bool has = session_->hasDrawing();
    for (const Command* command = commandsBegin(); command != commandsEnd(); ++command) {
        const bool needsDrawing = command->menu != Menu::Help && command->menu != Menu::Tools &&
                                  QString(command->id) != "open" && QString(command->id) != "quit" &&
                                  QString(command->id) != "recent" && !command->checkable &&
                                  !QString(command->id).startsWith("lightDark");
        actions_[command->id]->setEnabled((free || command->aliveInJob) && (has || !needsDrawing));
    }
    if (!has) {
        for (const char* id : {"undo", "redo", "label", "replace", "extract", "insert"})
            actions_[id]->setEnabled(false);
        return;
    }
    const drawing::Drawing& open = session_->drawing();
    const auto named = [&](const char* id, bool can, const std::string& step, const QString& plain) {
        actions_[id]->setEnabled(free && can);
        const QString name = qt_face::toShown(step);
        actions_[id]->setText(can && !name.isEmpty() ? QString("%1: %2").arg(plain, name) : plain);
    };
    named("undo", open.canUndo(), open.undoName(), tr("&Undo"));
    named("redo", open.canRedo(), open.redoName(), tr("&Redo"));
    const bool selected = !canvas_->selection().empty();
    for (const char* id : {"erase", "selectSame", "zoomSelection"}) {
        actions_[id]->setEnabled(actions_[id]->isEnabled() && selected);
    }
    // The tool of the command in hand stays bright: it says what is going on.
    for (const char* id : {"label", "replace", "extract", "insert"}) {
        const Command* command = commandsBegin();
        while (QString(command->id) != id) ++command;
        const bool running = !free && session_->runningName() == command->name;
        actions_[id]->setCheckable(running);
        actions_[id]->setChecked(running);
        if (running) actions_[id]->setEnabled(true);
    }
}

/// While a command has a dialog or a prompt up, the window around it steps back and takes nothing.
void MainWindow::updateBlocking() {
    const bool blocked = isBlocked();
    leftVeil_->setOn(blocked);
    // A page of the job at hand isn't veiled, though nothing in it can be pressed.
    rightVeil_->setOn(blocked && right_->currentWidget() == properties_ && watch_->shown().empty());
    status_->setBlocked(blocked);
    canvas_->setPicking(!blocked || prompter_->isAsking());
    updateActions();
    updatePrompt();
}

void MainWindow::updatePrompt() {
    if (prompter_->isAsking()) {
        commandLine_->setBlocked(false);
        return;
    }
    if (files_->isReading()) {
        commandLine_->setBlocked(true, tr("Opening %1").arg(files_->readName()));
        return;
    }
    if (isBlocked()) {
        const QString name = watch_->shown().empty()
                                 ? session_->runningName()
                                 : qt_face::toShown(watch_->shown().back()->caption()).section(" : ", -1);
        commandLine_->setBlocked(
            true, tr("%1 is open. The wheel and the middle button still move the drawing.").arg(name));
        return;
    }
    commandLine_->setBlocked(false);
    if (session_->isContinued()) {
        commandLine_->setPrompt("(_>", tr("The expression goes on; Esc gives it up"));
        return;
    }
    commandLine_->setPrompt(tr("Command:"), session_->lastLine().isEmpty()
                                                ? tr("Type a command or a Lisp expression")
                                                : tr("Space or Enter repeats %1").arg(session_->lastLine()));
}

void MainWindow::drawingOpened() {
    const drawing::Drawing* open = drawing();
    prompter_->forget();
    previousSelection_.clear();
    canvas_->setDrawing(open);
    blocks_->forgetPictures();
    spaces_.clear();
    QStringList names;
    if (open != nullptr) {
        const drawing::BlockTable& blocks = open->blocks();
        spaces_.push_back(open->modelSpace());
        for (drawing::BlockId id = 0; id < blocks.size(); ++id) {
            if (blocks[id].isPaperSpace && !blocks[id].isErased) spaces_.push_back(id);
        }
        for (const drawing::BlockId space : spaces_) {
            const QString name = qt_face::toShown(blocks[space].shownLayoutName());
            names.append(name.isEmpty() ? tr("Layout") : name);
        }
    }
    status_->setTabs(names, 0);
    status_->showResult({});
    listedRevision_ = ~std::uint64_t{0};
    drawingChanged();
}

void MainWindow::drawingChanged() {
    const drawing::Drawing* open = drawing();
    canvas_->drawingChanged();
    if (open == nullptr || open->revision() != listedRevision_) {
        if (open != nullptr) listedRevision_ = open->revision();
        blocks_->forgetPictures();
        blocks_->show(open);
        layers_->show(open);
    }
    selectionChanged();
    updateTitle();
    updateActions();
    status_->showCounts(canvas_->notDrawn(), canvas_->hidden());
}

void MainWindow::selectionChanged() {
    const std::vector<drawing::EntityId>& selected = canvas_->selection();
    if (prompter_->isAsking()) return;
    properties_->show(drawing(), selected);
    if (!selected.empty()) {
        previousSelection_ = selected;
        status_->showResult(tr("%n selected", nullptr, static_cast<int>(selected.size())));
        showsSelection_ = true;
        const drawing::Drawing* open = drawing();
        if (open->type(selected.front()) == "INSERT") {
            blocks_->choose(QString::fromStdString(open->name(selected.front())));
        }
    } else if (showsSelection_) {
        status_->showResult({});
        showsSelection_ = false;
    }
    updateActions();
}

void MainWindow::commandEnded(shell::Desk::Outcome outcome) {
    showsSelection_ = false;
    work_->reset();
    jobs_->end();
    watch_->forget();
    canvas_->setPicking(true);
    if (outcome == shell::Desk::Outcome::Quit) {
        close();
        return;
    }
    applyLanguage();
    const QString name = session_->runningName();
    // Of what a job brings in, the references count: a leader line comes with its label.
    const auto count = static_cast<int>(
        std::count_if(session_->fresh().begin(), session_->fresh().end(), [&](drawing::EntityId id) {
            return !name.startsWith("VN") || session_->drawing().type(id) == "INSERT";
        }));
    const QStringList links{tr("Show"), tr("Undo")};
    if (outcome == shell::Desk::Outcome::Failed) {
        status_->showResult(tr("%1 failed; the history tells why").arg(name), StatusLine::Tone::Failed);
    } else if (count > 0) {
        const QString done = name == "VNREPLACE"  ? tr("%n replaced", nullptr, count)
                             : name == "VNLABEL"  ? tr("%n placed", nullptr, count)
                             : name == "VNINSERT" ? tr("%n inserted", nullptr, count)
                                                  : tr("%n added", nullptr, count);
        status_->showResult(done, StatusLine::Tone::Done, links);
    } else {
        status_->showResult({});
    }
    updateBlocking();
    canvas_->setFocus();
}

void MainWindow::resultLink(int index) {
    if (isBlocked()) {
        index == 0 ? canvas_->zoomTo(jobs_->lit()) : canvas_->zoomPrevious();
        return;
    }
    if (index == 0) {
        canvas_->setSelection(session_->fresh());
        canvas_->zoomTo(session_->fresh());
        properties_->show(drawing(), canvas_->selection());
        updateActions();
    } else {
        session_->undo();
        status_->showResult({});
    }
    canvas_->setFocus();
}

void MainWindow::chooseSpace(int tab) {
    if (tab < 0 || static_cast<std::size_t>(tab) >= spaces_.size()) return;
    canvas_->setSelection({});
    canvas_->setSpace(spaces_[static_cast<std::size_t>(tab)]);
    selectionChanged();
    status_->showCounts(canvas_->notDrawn(), canvas_->hidden());
}

void MainWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (files_->isReading()) {
        files_->giveUpReading();
        QTimer::singleShot(0, this, &QWidget::close);
        return;
    }
    if (isBlocked()) {
        // The command holds the drawing: it is ended first, a prompt by breaking it off.
        prompter_->breakOff();
        status_->showResult(tr("End %1 first, then close the window").arg(session_->runningName()));
        return;
    }
    if (!files_->mayLeave()) return;
    keepState();
    event->accept();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    const QList<QUrl> urls = event->mimeData()->urls();
    if (!isBlocked() && urls.size() == 1 && Files::reads(urls.front().toLocalFile()))
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
    const QString path = event->mimeData()->urls().front().toLocalFile();
    event->acceptProposedAction();
    if (files_->mayLeave()) files_->open(path);
}

}  // namespace window
