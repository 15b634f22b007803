#include "desk/window/help_window.h"

#include "desk/window/icons.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpression>
#include <QSplitter>
#include <QTextBrowser>
#include <QTextDocumentFragment>
#include <QVBoxLayout>
#include <algorithm>

namespace window {

namespace {

constexpr QSize kSize{940, 680};
constexpr int kBesidePicture = 56;
/// These come first, in this order; then the others by title.
constexpr const char* kFirstPages[] = {"start", "labels", "replace", "extract", "reinsert"};

QString contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

int rankOf(const QString& path) {
    const QString name = QFileInfo(path).completeBaseName();
    const auto found = std::find(std::begin(kFirstPages), std::end(kFirstPages), name);
    return static_cast<int>(found - std::begin(kFirstPages));
}

/// The pages' own sheet is for browsers; this one takes the window's colours.
QString sheetFor(Scheme scheme) {
    const auto of = [scheme](Token token) { return color(token, scheme).name(); };
    return QString(
               "h1 { color: %1; } h2, h3 { color: %1; } a { color: %2; } th { color: %3; }"
               "td, th { padding: 4px 8px; } p.nav { color: %3; } li { margin-bottom: 3px; }")
        .arg(of(Token::Text), of(Token::Accent), of(Token::Text2));
}

/// Pictures that are wider than the page's room are drawn smaller.
QString withPicturesThatFit(const QString& content, const QString& folder, int room) {
    static const QRegularExpression picture("<img [^>]*src=\"([^\"]+)\"[^>]*>");
    static const QRegularExpression given(" width=\"(\\d+)\"");
    QString made;
    qsizetype last = 0;
    for (auto found = picture.globalMatch(content); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        QString tag = match.captured();
        const QRegularExpressionMatch width = given.match(tag);
        const int wanted = width.hasMatch() ? width.captured(1).toInt()
                                            : QImageReader(folder + "/" + match.captured(1)).size().width();
        tag.remove(given);
        tag.insert(4, QString(" width=\"%1\"").arg(std::min(wanted, room)));
        made += content.mid(last, match.capturedStart() - last) + tag;
        last = match.capturedEnd();
    }
    return made + content.mid(last);
}

}  // namespace

HelpWindow::HelpWindow(QWidget* parent)
    : QWidget(parent, Qt::Window),
      search_(new QLineEdit(this)),
      contents_(new QListWidget(this)),
      browser_(new QTextBrowser(this)),
      scheme_(schemeOf(QApplication::palette())) {
    setObjectName("helpWindow");
    resize(kSize);
    search_->setClearButtonEnabled(true);
    search_->addAction(icon("search"), QLineEdit::LeadingPosition);
    contents_->setObjectName("helpContents");
    contents_->setWordWrap(true);
    browser_->setObjectName("helpPage");
    browser_->setOpenLinks(false);
    browser_->document()->setDocumentMargin(18);

    auto* left = new QWidget(this);
    auto* column = new QVBoxLayout(left);
    column->setContentsMargins(8, 8, 8, 8);
    column->setSpacing(8);
    column->addWidget(search_);
    column->addWidget(contents_, 1);
    auto* parts = new QSplitter(this);
    parts->setHandleWidth(1);
    parts->setChildrenCollapsible(false);
    parts->addWidget(left);
    parts->addWidget(browser_);
    parts->setSizes({260, kSize.width() - 260});
    parts->setStretchFactor(1, 1);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(parts);

    connect(search_, &QLineEdit::textChanged, this, [this] {
        fillContents();
        markFound();
    });
    connect(search_, &QLineEdit::returnPressed, this, [this] {
        if (contents_->currentRow() < 0) contents_->setCurrentRow(0);
        browser_->setFocus();
    });
    connect(contents_, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* item) {
        if (item != nullptr) open(item->data(Qt::UserRole).toString());
    });
    connect(browser_, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) {
        if (!link.scheme().isEmpty() && !link.isLocalFile()) {
            QDesktopServices::openUrl(link);
            return;
        }
        const QString path = QDir::cleanPath(QFileInfo(shown_).absolutePath() + "/" + link.path());
        if (!link.path().isEmpty() && QFileInfo::exists(path)) showPage(path);
        if (link.hasFragment()) browser_->scrollToAnchor(link.fragment());
    });
}

void HelpWindow::showPage(const QString& path) {
    setWindowTitle(tr("Help") + QString::fromUtf8(" — Vorlane"));
    search_->setPlaceholderText(tr("Search the help"));
    search_->setAccessibleName(tr("Search the help"));
    contents_->setAccessibleName(tr("Contents"));
    browser_->setAccessibleName(tr("Page"));
    const QString full = QFileInfo(path).absoluteFilePath();
    if (QFileInfo(full).absolutePath() != folder_) readFolder(QFileInfo(full).absolutePath());
    search_->clear();
    show();
    open(full);
    fillContents();
    raise();
    activateWindow();
    browser_->setFocus();
}

void HelpWindow::setScheme(Scheme scheme) {
    scheme_ = scheme;
    const QString path = std::exchange(shown_, {});
    if (!path.isEmpty()) open(path);
}

void HelpWindow::readFolder(const QString& folder) {
    static const QRegularExpression title("<title>(.*?)</title>",
                                          QRegularExpression::DotMatchesEverythingOption);
    folder_ = folder;
    pages_.clear();
    for (const QFileInfo& file : QDir(folder).entryInfoList({"*.html"}, QDir::Files)) {
        const QString content = contentOf(file.absoluteFilePath());
        Page page;
        page.path = file.absoluteFilePath();
        page.title =
            QTextDocumentFragment::fromHtml(title.match(content).captured(1)).toPlainText().trimmed();
        page.text = QTextDocumentFragment::fromHtml(content).toPlainText();
        pages_.push_back(std::move(page));
    }
    std::sort(pages_.begin(), pages_.end(), [](const Page& one, const Page& other) {
        const int first = rankOf(one.path);
        const int second = rankOf(other.path);
        return first != second ? first < second : one.title.localeAwareCompare(other.title) < 0;
    });
}

/// Pages that hold each word of the search.
void HelpWindow::fillContents() {
    const QSignalBlocker quiet(contents_);
    const QStringList words = search_->text().split(' ', Qt::SkipEmptyParts);
    contents_->clear();
    for (const Page& page : pages_) {
        const bool fits = std::all_of(words.begin(), words.end(), [&page](const QString& word) {
            return page.text.contains(word, Qt::CaseInsensitive);
        });
        if (!fits) continue;
        auto* item = new QListWidgetItem(page.title, contents_);
        item->setData(Qt::UserRole, page.path);
        if (page.path == shown_) contents_->setCurrentItem(item);
    }
}

void HelpWindow::open(const QString& path) {
    if (path == shown_) return;
    shown_ = path;
    QString content = contentOf(path);
    static const QRegularExpression sheetLink("<link[^>]*>");
    content.remove(sheetLink);
    browser_->document()->setDefaultStyleSheet(sheetFor(scheme_));
    browser_->setSearchPaths({QFileInfo(path).absolutePath()});
    const int room = browser_->viewport()->width() - kBesidePicture;
    browser_->setHtml(withPicturesThatFit(content, QFileInfo(path).absolutePath(), room));
    markFound();
}

/// Each word that is searched is lit in the page.
void HelpWindow::markFound() {
    QList<QTextEdit::ExtraSelection> marks;
    QTextCharFormat lit;
    lit.setBackground(color(Token::AccentQuiet, scheme_));
    for (const QString& word : search_->text().split(' ', Qt::SkipEmptyParts)) {
        if (word.size() < 2) continue;
        for (QTextCursor found = browser_->document()->find(word); !found.isNull();
             found = browser_->document()->find(word, found))
            marks.append({found, lit});
    }
    browser_->setExtraSelections(marks);
    if (marks.isEmpty()) return;
    QTextCursor first = marks.front().cursor;
    first.clearSelection();
    browser_->setTextCursor(first);
    browser_->ensureCursorVisible();
}

void HelpWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        close();
    } else {
        QWidget::keyPressEvent(event);
    }
}

}  // namespace window
