#pragma once

#include "desk/window/theme.h"

#include <QString>
#include <QWidget>
#include <vector>

class QLineEdit;
class QListWidget;
class QTextBrowser;

namespace window {

/// The help: its contents with a search at the left, the page at the right. It stays up beside a dialog.
class HelpWindow : public QWidget {
    Q_OBJECT

  public:
    explicit HelpWindow(QWidget* parent);
    /// A page of the help by its file; the other pages of its folder make the contents.
    void showPage(const QString& path);
    void setScheme(Scheme scheme);

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    struct Page {
        QString path;
        QString title;
        QString text;  ///< what is searched
    };

    void readFolder(const QString& folder);
    void fillContents();
    void open(const QString& path);
    void markFound();

    QLineEdit* search_;
    QListWidget* contents_;
    QTextBrowser* browser_;
    std::vector<Page> pages_;
    QString folder_;
    QString shown_;
    Scheme scheme_;
};

}  // namespace window
