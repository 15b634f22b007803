#include "desk/window/files.h"

#include "basic/error.h"
#include "desk/shell/user_break.h"
#include "desk/window/parts.h"
#include "desk/window/session.h"
#include "desk/window/status_line.h"
#include "desk/window/work.h"
#include "faces/qt/qt_text.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QTimer>
#include <memory>

namespace window {

namespace {

constexpr int kMostRecent = 9;

bool isDwg(const QString& path) { return path.endsWith(".dwg", Qt::CaseInsensitive); }

}  // namespace

Files::Files(QWidget& window, Session& session, BusyBar& bar, StatusLine& status, NoticeBar& notice,
             QSettings& settings)
    : QObject(&window),
      window_(window),
      session_(session),
      bar_(bar),
      status_(status),
      notice_(notice),
      settings_(settings),
      recent_(settings.value("recent").toStringList()) {
    connect(&watcher_, &QFileSystemWatcher::fileChanged, this, [this] {
        // A program that renames a new file over the old one has done both by then.
        QTimer::singleShot(300, this, &Files::fileChanged);
    });
    connect(&notice_, &NoticeBar::answered, this, &Files::noticeAnswered);
}

bool Files::reads(const QString& path) { return path.endsWith(".dxf", Qt::CaseInsensitive) || isDwg(path); }

QString Files::shownName() const {
    if (!session_.hasDrawing()) return {};
    return qt_face::toShown(QFileInfo(QString::fromStdString(session_.drawing().path())).fileName());
}

void Files::tellFailure(const QString& head, const QString& why) {
    session_.tell(qt_face::toShown(head + " " + why));
    QMessageBox box(QMessageBox::Warning, tr("Vorlane"), qt_face::toShown(head), QMessageBox::Ok, &window_);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(qt_face::toShown(why));
    box.exec();
}

bool Files::openAsked() {
    if (!mayLeave()) return false;
    const QString folder = session_.hasDrawing()
                               ? QFileInfo(QString::fromStdString(session_.drawing().path())).path()
                               : settings_.value("folder").toString();
    const QString path =
        QFileDialog::getOpenFileName(&window_, tr("Open a drawing"), folder,
                                     tr("Drawings (*.dxf *.DXF *.dwg *.DWG)") + ";;" + tr("All files (*)"));
    return !path.isEmpty() && open(path);
}

bool Files::open(const QString& path) {
    if (isReading()) return false;
    const QString full = QFileInfo(path).absoluteFilePath();
    const QString name = QFileInfo(full).fileName();
    const QFileInfo before(full);
    const QDateTime stampBefore = before.lastModified();
    const qint64 sizeBefore = before.size();
    try {
        session_.open(full);
    } catch (const shell::UserBreak&) {
        session_.tell(tr("Opening was cancelled."));
        return false;
    } catch (const std::exception& failure) {
        const auto* error = dynamic_cast<const basic::Error*>(&failure);
        recent_.removeAll(full);
        emit recentChanged();
        tellFailure(
            tr("%1 can't be opened.").arg(name),
            QString::fromStdString(error != nullptr ? error->description() : std::string(failure.what())));
        return false;
    }
    isConverted_ = isDwg(full);
    remember(full);
    watch();
    if (!isConverted_ && (stamp_ != stampBefore || size_ != sizeBefore)) {
        // Another program wrote it while it was read.
        stamp_ = stampBefore;
        size_ = sizeBefore;
        fileChanged();
    }
    return true;
}

void Files::readAside(const QString& path, std::function<void()> reading) {
    readName_ = qt_face::toShown(QFileInfo(path).fileName());
    emit readingChanged();
    const auto end = [this](const QString*) {
        readName_.clear();
        emit readingChanged();
    };
    const std::unique_ptr<const QString, decltype(end)> reads(&readName_, end);
    if (!workAside(bar_, status_, tr("Opening %1").arg(readName_), std::move(reading)))
        throw shell::UserBreak();
}

void Files::giveUpReading() { emit status_.cancelAsked(); }

bool Files::save() {
    if (!session_.hasDrawing()) return false;
    if (isConverted_) return saveAs();
    return write({});
}

bool Files::saveAs() {
    if (!session_.hasDrawing()) return false;
    const QString own = QString::fromStdString(session_.drawing().path());
    const QFileInfo before(own);
    QString path = QFileDialog::getSaveFileName(&window_, tr("Save the drawing"),
                                                before.path() + "/" + before.completeBaseName() + ".dxf",
                                                tr("DXF drawings (*.dxf *.DXF)"));
    if (path.isEmpty()) return false;
    if (QFileInfo(path).suffix().isEmpty()) path += ".dxf";
    return write(path);
}

bool Files::saveTo(const QString& path) {
    if (!session_.hasDrawing()) return false;
    if (path.isEmpty()) return saveAs();
    const QFileInfo wanted(path);
    const bool isOwn = wanted.absoluteFilePath() ==
                       QFileInfo(QString::fromStdString(session_.drawing().path())).absoluteFilePath();
    if (isOwn && !isConverted_) return save();
    if (wanted.exists()) {
        QMessageBox box(QMessageBox::Question, tr("Vorlane"),
                        tr("%1 exists already.").arg(qt_face::toShown(wanted.fileName())),
                        QMessageBox::NoButton, &window_);
        box.setTextFormat(Qt::PlainText);
        auto* over = box.addButton(tr("Put this drawing in its place"), QMessageBox::DestructiveRole);
        box.addButton(tr("Cancel"), QMessageBox::RejectRole);
        box.exec();
        if (box.clickedButton() != over) return false;
    }
    return write(wanted.absoluteFilePath());
}

/// The disk may take its time with a large drawing: then the window says so beforehand, as it stands still.
void Files::showSaving(const QString& path) {
    constexpr qint64 kLarge = 8'000'000;
    if (QFileInfo(QString::fromStdString(session_.drawing().path())).size() < kLarge) return;
    QApplication::setOverrideCursor(Qt::BusyCursor);
    bar_.setBusy(true);
    status_.showWork(tr("Saving %1").arg(QFileInfo(path).fileName()), -1, false);
    bar_.repaint();
    status_.repaint();
    QTimer::singleShot(0, this, [this] {
        QApplication::restoreOverrideCursor();
        bar_.setBusy(false);
        status_.endWork();
    });
}

bool Files::write(const QString& path) {
    showSaving(path.isEmpty() ? QString::fromStdString(session_.drawing().path()) : path);
    try {
        session_.save(path);
    } catch (const basic::Error& error) {
        const QString target = path.isEmpty() ? QString::fromStdString(session_.drawing().path()) : path;
        tellFailure(tr("%1 could not be saved. The drawing is still open, and the file is as it was.")
                        .arg(QFileInfo(target).fileName()),
                    QString::fromStdString(error.description()));
        return false;
    }
    isConverted_ = false;
    remember(QString::fromStdString(session_.drawing().path()));
    watch();
    status_.showResult(tr("Saved"), StatusLine::Tone::Done);
    return true;
}

bool Files::confirm(const QString& question) {
    QMessageBox box(QMessageBox::Question, tr("Vorlane"), question, QMessageBox::NoButton, &window_);
    box.setTextFormat(Qt::PlainText);
    auto* yes = box.addButton(QCoreApplication::translate("window", "Yes"), QMessageBox::YesRole);
    box.setEscapeButton(box.addButton(QCoreApplication::translate("window", "No"), QMessageBox::NoRole));
    box.exec();
    return box.clickedButton() == yes;
}

bool Files::mayLeave() {
    if (!session_.hasUnsavedChanges()) return true;
    QMessageBox box(QMessageBox::Question, tr("Vorlane"), tr("Save the changes to %1?").arg(shownName()),
                    QMessageBox::NoButton, &window_);
    box.setInformativeText(tr("Changes that aren't saved are lost."));
    box.setTextFormat(Qt::PlainText);
    auto* saving = box.addButton(tr("Save"), QMessageBox::AcceptRole);
    auto* discarding = box.addButton(tr("Discard"), QMessageBox::DestructiveRole);
    box.addButton(tr("Cancel"), QMessageBox::RejectRole);
    box.setDefaultButton(saving);
    box.exec();
    if (box.clickedButton() == saving) return save();
    return box.clickedButton() == discarding;
}

void Files::remember(const QString& path) {
    const QString full = QFileInfo(path).absoluteFilePath();
    recent_.removeAll(full);
    recent_.prepend(full);
    while (recent_.size() > kMostRecent) recent_.removeLast();
    settings_.setValue("recent", recent_);
    settings_.setValue("folder", QFileInfo(full).path());
    emit recentChanged();
}

void Files::forgetRecent() {
    recent_.clear();
    settings_.setValue("recent", recent_);
    emit recentChanged();
}

void Files::watch() {
    notice_.hide();
    if (!watcher_.files().isEmpty()) watcher_.removePaths(watcher_.files());
    const QFileInfo file(QString::fromStdString(session_.drawing().path()));
    stamp_ = file.lastModified();
    size_ = file.exists() ? file.size() : -1;
    if (!isConverted_) watcher_.addPath(file.filePath());
}

void Files::fileChanged() {
    if (!session_.hasDrawing()) return;
    const QString path = QString::fromStdString(session_.drawing().path());
    const QFileInfo file(path);
    if (file.exists() && !watcher_.files().contains(path)) watcher_.addPath(path);
    if (file.exists() && file.lastModified() == stamp_ && file.size() == size_) return;
    if (!file.exists()) {
        notice_.tell(tr("%1 was removed or renamed by another program. Your drawing is still here.")
                         .arg(file.fileName()),
                     {tr("Save as…"), tr("Close")});
        return;
    }
    const QString lost =
        session_.hasUnsavedChanges() ? " " + tr("Opening it anew loses your changes.") : QString();
    notice_.tell(tr("%1 was changed by another program.").arg(file.fileName()) + lost,
                 {tr("Open anew"), tr("Keep mine")});
}

void Files::noticeAnswered(int index) {
    if (index != 0 || session_.isRunning()) return;
    const QString path = QString::fromStdString(session_.drawing().path());
    if (QFileInfo::exists(path)) {
        open(path);
    } else {
        saveAs();
    }
}

}  // namespace window
