#include "desk/window/blocks_panel.h"
#include "desk/window/command_line.h"
#include "desk/window/files.h"
#include "desk/window/icons.h"
#include "desk/window/job_page.h"
#include "desk/window/job_view.h"
#include "desk/window/layers_panel.h"
#include "desk/window/main_window.h"
#include "desk/window/parts.h"
#include "desk/window/properties_panel.h"
#include "desk/window/run_watch.h"
#include "desk/window/status_line.h"
#include "faces/qt/qt_text.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QSplitter>
#include <QStackedWidget>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace window {

namespace {

constexpr int kLeftWidth = 264;
constexpr int kRightWidth = 280;

}  // namespace

void MainWindow::build() {
    buildParts();
    buildMenus();
    buildTools();
}

void MainWindow::buildParts() {
    canvas_ = new Canvas(this);
    canvas_->setMinimumWidth(400);
    canvas_->setFocusPolicy(Qt::StrongFocus);
    busy_ = new BusyBar(this);
    notice_ = new NoticeBar(this);
    commandLine_ = new CommandLine(this);
    status_ = new StatusLine(this);
    leftTab_ = new EdgeTab(this);
    rightTab_ = new EdgeTab(this);

    parts_ = new QSplitter(Qt::Horizontal, this);
    parts_->setObjectName("parts");
    parts_->setHandleWidth(1);
    parts_->setChildrenCollapsible(false);
    parts_->addWidget(buildLeftDock());
    parts_->addWidget(canvas_);
    parts_->addWidget(buildRightDock());
    parts_->setStretchFactor(0, 0);
    parts_->setStretchFactor(1, 1);
    parts_->setStretchFactor(2, 0);
    parts_->setSizes({kLeftWidth, 1600 - kLeftWidth - kRightWidth, kRightWidth});

    auto* middle = new QHBoxLayout;
    middle->setSpacing(0);
    middle->addWidget(leftTab_);
    middle->addWidget(parts_, 1);
    middle->addWidget(rightTab_);
    auto* central = new QWidget(this);
    auto* column = new QVBoxLayout(central);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(busy_);
    column->addWidget(notice_);
    column->addLayout(middle, 1);
    column->addWidget(commandLine_);
    column->addWidget(status_);
    setCentralWidget(central);
}

QWidget* MainWindow::buildLeftDock() {
    const auto picture = [this](drawing::BlockId block, QSize box) {
        return canvas_->blockPicture(block, box, std::nullopt, false);
    };
    blocks_ = new BlocksPanel(picture, this);
    layers_ = new LayersPanel(this);
    left_ = new QSplitter(Qt::Vertical, this);
    left_->setObjectName("leftParts");
    left_->setHandleWidth(1);
    left_->setChildrenCollapsible(false);
    left_->addWidget(blocks_);
    left_->addWidget(layers_);
    left_->setSizes({550, 450});
    left_->setStretchFactor(0, 55);
    left_->setStretchFactor(1, 45);
    // A splitter takes each child for a part: the veil needs a frame about it.
    leftDock_ = new QWidget(this);
    leftDock_->setObjectName("leftDock");
    auto* frame = new QVBoxLayout(leftDock_);
    frame->setContentsMargins(0, 0, 0, 0);
    frame->addWidget(left_);
    leftDock_->setMinimumWidth(220);
    leftDock_->setMaximumWidth(400);
    leftVeil_ = new Veil(leftDock_);
    return leftDock_;
}

QWidget* MainWindow::buildRightDock() {
    const auto picture = [this](drawing::BlockId block, QSize box) {
        return canvas_->blockPicture(block, box, std::nullopt, true);
    };
    const auto edit = [this](const QString& name, const std::function<void(drawing::Drawing&)>& change) {
        if (!isBlocked()) session_->edit(name, change);
    };
    properties_ = new PropertiesPanel(picture, edit, this);
    page_ = new JobPage(this);
    right_ = new QStackedWidget(this);
    right_->setObjectName("rightDock");
    right_->addWidget(properties_);
    right_->addWidget(page_);
    right_->setMinimumWidth(240);
    right_->setMaximumWidth(420);
    rightVeil_ = new Veil(right_);
    return right_;
}

void MainWindow::buildMenus() {
    QMap<Menu, QMenu*> menus;
    for (const Command* command = commandsBegin(); command != commandsEnd(); ++command) {
        QMenu*& menu = menus[command->menu];
        if (menu == nullptr) {
            menu = menuBar()->addMenu(QString());
            menu->setObjectName(menuTitle(command->menu));
        }
        auto* action = new QAction(this);
        if (command->icon[0] != '\0') action->setIcon(icon(command->icon));
        action->setShortcut(QKeySequence(QString::fromLatin1(command->key)));
        action->setCheckable(command->checkable);
        action->setObjectName(command->id);
        actions_[command->id] = action;
        if (QString(command->id) == "recent") {
            action->setMenu(new QMenu(this));
        } else if (!command->checkable) {
            connect(action, &QAction::triggered, this, [this, id = QString(command->id)] { trigger(id); });
        }
        connect(action, &QAction::hovered, this, [this, command] { status_->showHint(toolTipOf(*command)); });
        menu->addAction(action);
        addAction(action);
        if (command->endsGroup) menu->addSeparator();
    }
    for (QMenu* menu : menus) connect(menu, &QMenu::aboutToHide, this, [this] { status_->showHint({}); });
}

void MainWindow::buildTools() {
    tools_ = new QToolBar(this);
    tools_->setObjectName("tools");
    tools_->setMovable(false);
    tools_->setFloatable(false);
    tools_->setContextMenuPolicy(Qt::PreventContextMenu);
    tools_->setIconSize({20, 20});
    tools_->setFixedHeight(40);
    const auto add = [this](const char* id, bool named) {
        tools_->addAction(actions_[id]);
        auto* button = qobject_cast<QToolButton*>(tools_->widgetForAction(actions_[id]));
        button->setFixedHeight(30);
        button->setFocusPolicy(Qt::TabFocus);
        button->installEventFilter(this);
        if (named) button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    };
    for (const char* id : {"open", "save"}) add(id, false);
    tools_->addSeparator();
    for (const char* id : {"undo", "redo"}) add(id, false);
    tools_->addSeparator();
    for (const char* id : {"label", "replace", "extract", "insert"}) add(id, true);
    tools_->addSeparator();
    for (const char* id : {"help", "about"}) add(id, false);
    auto* gap = new QWidget(this);
    gap->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    tools_->addWidget(gap);
    for (const char* id : {"zoomAll", "zoomWindow", "zoomPrevious"}) add(id, false);
    tools_->addSeparator();
    add("lightDark", false);
    addToolBar(tools_);
}

void MainWindow::connectParts() {
    connect(canvas_, &Canvas::selectionChanged, this, &MainWindow::selectionChanged);
    connect(canvas_, &Canvas::typed, commandLine_, &CommandLine::type);
    connect(canvas_, &Canvas::typedKey, this, [this](QKeyEvent* key) { commandLine_->pass(*key); });
    connect(canvas_, &Canvas::brokenOff, this, [this] {
        if (!prompter_->isAsking()) escape();
    });
    connect(canvas_, &Canvas::finished, this, [this] {
        if (prompter_->isAsking() || isBlocked()) return;
        runCommand({});
    });
    connect(canvas_, &Canvas::cursorMoved, this,
            [this](const geometry::Point3& point) { status_->showCursor(point.x, point.y); });
    connect(canvas_, &Canvas::countsChanged, this,
            [this] { status_->showCounts(canvas_->notDrawn(), canvas_->hidden()); });
    connect(canvas_, &Canvas::snapChanged, actions_["snap"], &QAction::setChecked);
    connect(canvas_, &Canvas::orthoChanged, actions_["ortho"], &QAction::setChecked);

    connect(commandLine_, &CommandLine::lineEntered, this, &MainWindow::enterLine);
    connect(commandLine_, &CommandLine::brokenOff, this, [this] {
        const bool wasAsking = prompter_->isAsking();
        escape();
        if (wasAsking) canvas_->setFocus();
    });
    connect(commandLine_, &CommandLine::textChanged, canvas_, &Canvas::setTyped);

    connect(blocks_, &BlocksPanel::selectReferences, this,
            [this](const QString& block) { blockJob("SHOW", block); });
    connect(blocks_, &BlocksPanel::jobAsked, this, &MainWindow::blockJob);
    connect(layers_, &LayersPanel::actAsked, this, &MainWindow::changeLayer);
    connect(layers_, &LayersPanel::selectEntities, this, [this](const QString& layer) {
        std::vector<drawing::EntityId> found;
        const drawing::Drawing& open = session_->drawing();
        open.forEachEntity(canvas_->space(), [&](drawing::EntityId id) {
            if (open.isDisplayed(id) && open.layerName(id) == layer.toStdString()) found.push_back(id);
            return true;
        });
        canvas_->setSelection(std::move(found));
        selectionChanged();
    });

    connect(status_, &StatusLine::tabChosen, this, &MainWindow::chooseSpace);
    connect(status_, &StatusLine::linkClicked, this, &MainWindow::resultLink);
    connect(status_, &StatusLine::snapToggled, actions_["snap"], &QAction::setChecked);
    connect(status_, &StatusLine::orthoToggled, actions_["ortho"], &QAction::setChecked);
    connect(status_, &StatusLine::weightsToggled, actions_["weights"], &QAction::setChecked);
    const auto switched = [this](const char* id, auto&& apply) {
        connect(actions_[id], &QAction::toggled, this, [this, apply](bool on) {
            apply(on);
            status_->setSwitches(actions_["snap"]->isChecked(), actions_["ortho"]->isChecked(),
                                 actions_["weights"]->isChecked());
        });
    };
    switched("snap", [this](bool on) { canvas_->setSnap(on); });
    switched("ortho", [this](bool on) { canvas_->setOrtho(on); });
    switched("weights", [this](bool on) { canvas_->setWeights(on); });
    switched("fullCross", [this](bool on) { canvas_->setFullCross(on); });
    switched("trueColors", [this](bool on) { canvas_->setTrueColors(on); });
    switched("history", [this](bool on) {
        commandLine_->setHistoryLines(on ? qMax(8, height() * 2 / 5 / 18) : 3);
        commandLine_->setVisible(true);
    });
    switched("commandLine", [this](bool on) { commandLine_->setVisible(on && !alone_); });
    switched("properties", [this](bool on) {
        rightUnfolded_ = on;
        layOutDocks();
        if (on && !right_->isHidden() && isVisible()) properties_->focusFirst();
    });
    switched("blocks", [this](bool on) {
        leftUnfolded_ = on;
        layOutDocks();
        if (on && !leftDock_->isHidden() && isVisible()) blocks_->focusList();
    });
    switched("canvasAlone", [this](bool on) { setAlone(on); });
    connect(leftTab_, &EdgeTab::clicked, this, [this] {
        leftUnfolded_ = !leftUnfolded_;
        layOutDocks();
    });
    connect(rightTab_, &EdgeTab::clicked, this, [this] {
        rightUnfolded_ = !rightUnfolded_;
        layOutDocks();
    });
    for (QWidget* dock : {leftDock_, static_cast<QWidget*>(right_)}) dock->installEventFilter(this);
    commandLine_->installEventFilter(this);
}

void MainWindow::connectSession() {
    connect(session_, &Session::told, commandLine_, &CommandLine::tell);
    connect(work_, &RunWatch::heldUp, jobs_, &JobView::hold);
    connect(session_, &Session::began, this, [this] {
        work_->reset();
        status_->showResult({});
        jobs_->begin();
        // A job brings marks of its own.
        if (session_->runningName().startsWith("VN")) canvas_->setSelection({});
        updateBlocking();
    });
    connect(session_, &Session::opened, this, &MainWindow::drawingOpened);
    connect(session_, &Session::changed, this, &MainWindow::drawingChanged);
    connect(session_, &Session::ended, this, &MainWindow::commandEnded);
    connect(prompter_, &CanvasPrompter::told, commandLine_, &CommandLine::tell);
    connect(prompter_, &CanvasPrompter::asked, this, [this] {
        canvas_->drawingChanged();
        updateBlocking();
        activateWindow();
        canvas_->setFocus();
    });
    connect(prompter_, &CanvasPrompter::answered, this, &MainWindow::updateBlocking);
    connect(watch_, &DialogWatch::shownChanged, this, &MainWindow::updateBlocking);
    connect(jobs_, &JobView::replacementShown, this, [this](const ReplacementView& view) {
        page_->show(view);
        right_->setCurrentWidget(page_);
        rightVeil_->setOn(false);
    });
    connect(jobs_, &JobView::insertionShown, this, [this](const InsertionView& view) {
        page_->show(view);
        right_->setCurrentWidget(page_);
        rightVeil_->setOn(false);
    });
    connect(jobs_, &JobView::pageGone, this, [this] { right_->setCurrentWidget(properties_); });
    connect(jobs_, &JobView::rowShown, this, [this](drawing::EntityId id) {
        std::vector<drawing::EntityId> shown;
        if (id != drawing::kNoEntity) shown.push_back(id);
        properties_->show(drawing(), shown);
        rightVeil_->setOn(false);
    });
    connect(jobs_, &JobView::marksChanged, this, [this](const QString& text) {
        status_->showResult(
            text, StatusLine::Tone::Plain,
            text.isEmpty() ? QStringList() : QStringList{tr("Show all"), tr("Previous view")});
    });
    connect(files_, &Files::readingChanged, this, [this] {
        updateBlocking();
        if (!files_->isReading()) canvas_->setFocus();
    });
    connect(files_, &Files::recentChanged, this, [this] {
        QMenu* menu = actions_["recent"]->menu();
        menu->clear();
        for (const QString& path : files_->recent()) {
            menu->addAction(qt_face::toShown(path).replace("&", "&&"), this, [this, path] {
                if (!isBlocked() && files_->mayLeave()) files_->open(path);
            });
        }
        if (!files_->recent().isEmpty()) menu->addSeparator();
        menu->addAction(tr("Forget these"), files_, &Files::forgetRecent)
            ->setEnabled(!files_->recent().isEmpty());
    });
    emit files_->recentChanged();
    QStringList words;
    for (const Command* command = commandsBegin(); command != commandsEnd(); ++command) {
        if (command->name[0] != '\0') words.append(command->name);
    }
    for (const QString& name : session_->commandNames()) {
        if (!words.contains(name)) words.append(name);
    }
    commandLine_->setWords(words);
    commandLine_->setArgumentWords({"OPEN", "SAVE", "SAVE!", "SAVEAS", "LIST", "PICTURE", "F"});
}

}  // namespace window
