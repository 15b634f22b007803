#pragma once

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QObject>
#include <QStringList>
#include <functional>

class QSettings;
class QWidget;

namespace window {

class BusyBar;
class NoticeBar;
class Session;
class StatusLine;

/// Opening and saving in the window, the recent files, and a file that another program changes meanwhile.
class Files : public QObject {
    Q_OBJECT

  public:
    /// All outlive this.
    Files(QWidget& window, Session& session, BusyBar& bar, StatusLine& status, NoticeBar& notice,
          QSettings& settings);

    /// Each gives whether it was done; failures are told.
    bool openAsked();
    bool open(const QString& path);
    bool save();
    bool saveAs();
    /// To a path that was typed; an empty one asks.
    bool saveTo(const QString& path);
    /// Asks what to do with unsaved changes: save, discard, or stay (false).
    bool mayLeave();

    /// A question of the desk's, yes or no.
    bool confirm(const QString& question);
    /// Runs a reading with the window alive; raises shell::UserBreak when the user gives up.
    void readAside(const QString& path, std::function<void()> reading);

    /// A drawing is being read: meanwhile the one of before takes no changes, which it would lose.
    bool isReading() const { return !readName_.isEmpty(); }
    const QString& readName() const { return readName_; }
    void giveUpReading();

    const QStringList& recent() const { return recent_; }
    void forgetRecent();
    /// The drawing's file name, empty for none.
    QString shownName() const;
    static bool reads(const QString& path);

  signals:
    void recentChanged();
    void readingChanged();

  private:
    bool write(const QString& path);
    void showSaving(const QString& path);
    void remember(const QString& path);
    void watch();
    void fileChanged();
    void noticeAnswered(int index);
    void tellFailure(const QString& head, const QString& why);

    QWidget& window_;
    Session& session_;
    BusyBar& bar_;
    StatusLine& status_;
    NoticeBar& notice_;
    QSettings& settings_;
    QFileSystemWatcher watcher_;
    QStringList recent_;
    QDateTime stamp_;  ///< of the file as we read or wrote it
    qint64 size_ = -1;
    QString readName_;
    bool isConverted_ = false;  ///< of a DWG file: it has no file of its own yet
};

}  // namespace window
