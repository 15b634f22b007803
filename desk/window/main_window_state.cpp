#include "desk/shell/install_folder.h"
#include "desk/window/blocks_panel.h"
#include "desk/window/command_line.h"
#include "desk/window/files.h"
#include "desk/window/help_window.h"
#include "desk/window/job_page.h"
#include "desk/window/layers_panel.h"
#include "desk/window/main_window.h"
#include "desk/window/parts.h"
#include "desk/window/properties_panel.h"
#include "desk/window/status_line.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLibraryInfo>
#include <QLocale>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>
#include <QSplitter>
#include <QStackedWidget>
#include <QStyleFactory>
#include <QToolBar>

namespace window {

namespace {

constexpr int kFoldRightBelow = 1100;
constexpr int kFoldLeftBelow = 860;

QString text(const char* english) { return QCoreApplication::translate("window", english); }

Scheme chosenScheme(const QString& value, Scheme otherwise) {
    if (value == "dark") return Scheme::Dark;
    if (value == "light") return Scheme::Light;
    return otherwise;
}

}  // namespace

void MainWindow::applyScheme() {
    scheme_ = chosenScheme(settings_.value("scheme").toString(), desktop_);
    canvasScheme_ = chosenScheme(settings_.value("canvasScheme").toString(), scheme_);
    QApplication::setPalette(themePalette(scheme_));
    qApp->setStyleSheet(themeStyleSheet(scheme_));
    canvas_->setScheme(canvasScheme_);
    blocks_->setScheme(scheme_);
    layers_->setScheme(scheme_);
    properties_->setScheme(scheme_);
    page_->setScheme(scheme_);
    if (help_ != nullptr) help_->setScheme(scheme_);
    blocks_->forgetPictures();
    status_->showCounts(canvas_->notDrawn(), canvas_->hidden());
}

void MainWindow::applyLanguage() {
    std::string language;
    try {
        language = shell::storedLanguage(options_.installFolder);
    } catch (const std::exception&) {
        // Without settings the window speaks English.
    }
    const QString file = translationFile(language);
    if (file == language_ && !actions_["open"]->text().isEmpty()) return;
    language_ = file;
    QCoreApplication::removeTranslator(&translation_);
    translation_.read(file);
    QCoreApplication::removeTranslator(&toolkitTranslation_);
    QCoreApplication::installTranslator(&translation_);
    const QLocale locale = file == translationFile({}) ? QLocale::English : QLocale::French;
    if (toolkitTranslation_.load(locale, "qtbase", "_", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&toolkitTranslation_);
    retranslate();
}

QString MainWindow::toolTipOf(const Command& command) const {
    QString tip = plainText(text(command.text));
    if (command.name[0] != '\0') tip += QString(" (%1)").arg(command.name);
    const QString key = actions_[command.id]->shortcut().toString(QKeySequence::NativeText);
    return key.isEmpty() ? tip : tip + "  " + key;
}

void MainWindow::retranslate() {
    for (const Command* command = commandsBegin(); command != commandsEnd(); ++command) {
        QAction* action = actions_[command->id];
        action->setText(text(command->text));
        action->setIconText(plainText(text(command->text)));
        action->setToolTip(toolTipOf(*command));
    }
    const char* const titles[] = {"&File", "&Edit", "&View", "&Select", "&Blocks", "&Tools", "&Help"};
    int index = 0;
    for (QAction* action : menuBar()->actions()) action->setText(text(titles[index++]));
    tools_->setWindowTitle(tr("Tools"));
    canvas_->setAccessibleName(tr("Drawing"));
    leftTab_->setText(tr("Blocks and layers"));
    rightTab_->setText(tr("Properties"));
    blocks_->retranslate();
    layers_->retranslate();
    properties_->retranslate();
    status_->retranslate();
    emit files_->recentChanged();
    updateActions();
    updatePrompt();
}

void MainWindow::restoreState() {
    restoreGeometry(settings_.value("geometry").toByteArray());
    parts_->restoreState(settings_.value("parts").toByteArray());
    left_->restoreState(settings_.value("leftDock").toByteArray());
    blocks_->setHidesDimensions(settings_.value("hidesDimensions", true).toBool());
    const auto restore = [this](const char* id, bool atFirst) {
        actions_[id]->setChecked(settings_.value(id, atFirst).toBool());
    };
    restore("snap", true);
    restore("ortho", false);
    restore("weights", false);
    restore("trueColors", false);
    restore("fullCross", false);
    restore("properties", true);
    restore("blocks", true);
    restore("commandLine", true);
    canvas_->setSnap(actions_["snap"]->isChecked());
    status_->setSwitches(actions_["snap"]->isChecked(), actions_["ortho"]->isChecked(),
                         actions_["weights"]->isChecked());
    leftUnfolded_ = rightUnfolded_ = false;
    layOutDocks();
}

void MainWindow::keepState() {
    settings_.setValue("geometry", saveGeometry());
    settings_.setValue("parts", parts_->saveState());
    settings_.setValue("leftDock", left_->saveState());
    settings_.setValue("hidesDimensions", blocks_->hidesDimensions());
    for (const char* id :
         {"snap", "ortho", "weights", "trueColors", "fullCross", "properties", "blocks", "commandLine"}) {
        settings_.setValue(id, actions_[id]->isChecked());
    }
}

/// A dock is seen where it is wanted and there is room; else its tab at the window's edge.
void MainWindow::layOutDocks() {
    const auto lay = [this](QWidget* dock, EdgeTab* tab, const char* id, int foldBelow, bool unfolded) {
        const bool wanted = actions_[id]->isChecked() && !alone_;
        const bool folds = width() < foldBelow;
        dock->setVisible(wanted && (!folds || unfolded));
        tab->setVisible(wanted && folds);
        tab->setUnfolded(unfolded);
    };
    lay(right_, rightTab_, "properties", kFoldRightBelow, rightUnfolded_);
    lay(leftDock_, leftTab_, "blocks", kFoldLeftBelow, leftUnfolded_);
}

void MainWindow::setAlone(bool alone) {
    alone_ = alone;
    tools_->setVisible(!alone);
    commandLine_->setVisible(!alone && actions_["commandLine"]->isChecked());
    layOutDocks();
    if (alone) canvas_->setFocus();
}

void MainWindow::focusNextPart() {
    const QWidget* focus = QApplication::focusWidget();
    const auto has = [focus](const QWidget* part) {
        return focus != nullptr && (part == focus || part->isAncestorOf(focus));
    };
    // Round: drawing, command line, blocks, layers, properties. Docks that take nothing are passed over.
    const bool docks = !isBlocked();
    struct Part {
        QWidget* widget;
        std::function<void()> focus;
        bool shown;
    };
    const Part parts[] = {
        {canvas_, [this] { canvas_->setFocus(Qt::ShortcutFocusReason); }, true},
        {commandLine_, [this] { commandLine_->focusInput(); }, commandLine_->isVisible()},
        {blocks_, [this] { blocks_->focusList(); }, docks && leftDock_->isVisible()},
        {layers_, [this] { layers_->focusList(); }, docks && leftDock_->isVisible()},
        {right_, [this] { properties_->focusFirst(); }, docks && right_->isVisible()},
    };
    std::size_t at = 0;
    while (at < std::size(parts) && !has(parts[at].widget)) ++at;
    for (std::size_t step = 1; step <= std::size(parts); ++step) {
        const Part& next = parts[(at + step) % std::size(parts)];
        if (next.shown) return next.focus();
    }
}

void MainWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    layOutDocks();
}

/// Esc in a panel goes to the drawing; a tool that the mouse leaves takes its hint with it.
bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Leave && watched->parent() == tools_) status_->showHint({});
    const bool isDock = watched == leftDock_ || watched == right_;
    if (isDock && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        canvas_->setFocus(Qt::ShortcutFocusReason);
        return true;
    }
    return QMainWindow::eventFilter(watched, event);
}

}  // namespace window
