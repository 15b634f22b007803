#include "desk/window/command_line.h"

#include <QApplication>
#include <QClipboard>
#include <QFontDatabase>
#include <QFrame>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QStyle>
#include <QVBoxLayout>
#include <cmath>

namespace window {

namespace {

constexpr int kMostLines = 2000;
constexpr int kOfferedRows = 8;
constexpr int kOfferFrom = 2;  ///< letters
constexpr int kShownLines = 3;
constexpr int kRoomToType = 160;  ///< is left free by the hint at the right

/// A Lisp expression or a text in it: blanks belong to it.
bool holdsBlanks(const QString& text) { return text.startsWith('(') || text.startsWith('!'); }

}  // namespace

CommandLine::CommandLine(QWidget* parent)
    : QWidget(parent),
      history_(new QPlainTextEdit(this)),
      frame_(new QFrame(this)),
      sign_(new QLabel(">", frame_)),
      prompt_(new QLabel(frame_)),
      options_(new QWidget(frame_)),
      optionRow_(new QHBoxLayout(options_)),
      input_(new QLineEdit(frame_)),
      hint_(new QLabel(frame_)),
      offered_(new QListWidget(this)) {
    const QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    setObjectName("commandLine");
    setAttribute(Qt::WA_StyledBackground);

    history_->setReadOnly(true);
    history_->setFont(fixed);
    history_->setFrameShape(QFrame::NoFrame);
    history_->setMaximumBlockCount(kMostLines);
    history_->setObjectName("commandHistory");
    history_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    history_->document()->setDocumentMargin(0);
    history_->setFocusPolicy(Qt::ClickFocus);

    frame_->setObjectName("commandFrame");
    frame_->setFixedHeight(30);
    sign_->setObjectName("commandSign");
    QFont bold = fixed;
    bold.setBold(true);
    for (QLabel* label : {sign_, prompt_}) label->setFont(bold);
    prompt_->setTextFormat(Qt::PlainText);
    prompt_->setMinimumWidth(1);  // a long one is cut rather than that it widens the window
    optionRow_->setContentsMargins(0, 0, 0, 0);
    optionRow_->setSpacing(0);
    options_->setFont(fixed);
    options_->setMinimumWidth(1);
    hint_->setObjectName("secondText");
    hint_->setTextFormat(Qt::PlainText);
    input_->setFont(fixed);
    input_->setFrame(false);
    input_->setObjectName("commandInput");
    auto* row = new QHBoxLayout(frame_);
    row->setContentsMargins(8, 0, 8, 0);
    row->setSpacing(8);
    row->addWidget(sign_);
    row->addWidget(prompt_);
    row->addWidget(options_);
    row->addWidget(input_, 1);
    row->addWidget(hint_);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(8, 6, 8, 6);
    column->setSpacing(4);
    column->addWidget(history_);
    column->addWidget(frame_);

    offered_->setWindowFlags(Qt::ToolTip);
    offered_->setFocusPolicy(Qt::NoFocus);
    offered_->setFont(fixed);
    offered_->setObjectName("offeredWords");
    offered_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(offered_, &QListWidget::itemClicked, this, [this] {
        takeOffered();
        enter();
    });

    input_->installEventFilter(this);
    connect(input_, &QLineEdit::textEdited, this, [this] { offer(); });
    connect(input_, &QLineEdit::textChanged, this, &CommandLine::textChanged);
    setHistoryLines(kShownLines);
    setPrompt({}, {});
}

void CommandLine::setWords(const QStringList& words) {
    words_ = words;
    words_.sort();
}

void CommandLine::tell(const QString& line) {
    history_->appendPlainText(line);
    history_->verticalScrollBar()->setValue(history_->verticalScrollBar()->maximum());
}

void CommandLine::setPrompt(const QString& prompt, const QString& hint) {
    prompt_->setText(prompt.trimmed());
    prompt_->setVisible(!prompt.trimmed().isEmpty());
    input_->setPlaceholderText(hint);
    input_->setAccessibleName(prompt.isEmpty() ? tr("Command line") : prompt.trimmed());
    history_->setAccessibleName(tr("Command history"));
    while (QLayoutItem* item = optionRow_->takeAt(0)) {
        item->widget()->hide();  // at once: in a prompt's own loop the deletion waits for its end
        item->widget()->deleteLater();
        delete item;
    }
    options_->hide();
    hint_->hide();
    hint_->clear();
}

void CommandLine::ask(const QString& question, const QVector<PromptOption>& options, const QString& hint) {
    setPrompt(question, {});
    hint_->setText(hint);
    for (const PromptOption& option : options) addOption(optionRow_->isEmpty() ? "[" : "/", option);
    if (!options.isEmpty()) {
        optionRow_->addWidget(new QLabel("]", options_));
        options_->show();
    }
    fitHint();
}

void CommandLine::addOption(const QString& sign, const PromptOption& option) {
    optionRow_->addWidget(new QLabel(sign, options_));
    auto* link = new QPushButton(option.name, options_);
    link->setObjectName("link");
    link->setFont(options_->font());
    link->setToolTip(option.answer);
    link->setCursor(Qt::PointingHandCursor);
    link->setFocusPolicy(Qt::NoFocus);
    connect(link, &QPushButton::clicked, this, [this, answer = option.answer] {
        clear();
        emit lineEntered(answer);
    });
    optionRow_->addWidget(link);
}

/// The hint stands where there is room besides what is typed.
void CommandLine::fitHint() {
    int used = kRoomToType + sign_->sizeHint().width() + prompt_->sizeHint().width();
    if (!options_->isHidden()) used += options_->sizeHint().width();
    hint_->setVisible(!hint_->text().isEmpty() && used + hint_->sizeHint().width() < frame_->width());
}

void CommandLine::setBlocked(bool blocked, const QString& why) {
    input_->setReadOnly(blocked);
    input_->setFocusPolicy(blocked ? Qt::NoFocus : Qt::StrongFocus);
    if (!blocked) return;
    input_->clear();
    offered_->hide();
    setPrompt({}, why);
}

void CommandLine::type(const QString& text) {
    if (input_->isReadOnly()) return;
    focusInput();
    input_->insert(text);
    offer();
}

void CommandLine::pass(const QKeyEvent& key) {
    QKeyEvent copy(QEvent::KeyPress, key.key(), key.modifiers(), key.text());
    QCoreApplication::sendEvent(input_, &copy);
}

QString CommandLine::text() const { return input_->text(); }
void CommandLine::clear() {
    input_->clear();
    offered_->hide();
}
void CommandLine::focusInput() { input_->setFocus(Qt::OtherFocusReason); }
bool CommandLine::hasInputFocus() const { return input_->hasFocus(); }

void CommandLine::setHistoryLines(int lines) {
    // Whole lines, so that none is cut.
    const double height = lines * QFontMetricsF(history_->font()).lineSpacing();
    history_->setFixedHeight(static_cast<int>(std::ceil(height)) + 2);
}

QString CommandLine::historyText() const { return history_->toPlainText(); }

bool CommandLine::eventFilter(QObject* watched, QEvent* event) {
    if (watched != input_) return QWidget::eventFilter(watched, event);
    if (event->type() == QEvent::FocusOut) offered_->hide();
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
        frame_->setProperty("focused", event->type() == QEvent::FocusIn);
        frame_->style()->unpolish(frame_);
        frame_->style()->polish(frame_);
    }
    if (event->type() == QEvent::ShortcutOverride) {
        // Keys of the line come before shortcuts of the window.
        auto* key = static_cast<QKeyEvent*>(event);
        const int code = key->key();
        if (code == Qt::Key_Escape || code == Qt::Key_Up || code == Qt::Key_Down ||
            code == Qt::Key_Backspace) {
            event->accept();
            return true;
        }
        // With nothing typed, what edits a text is the drawing's.
        const bool edits = key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo) ||
                           key->matches(QKeySequence::SelectAll) || code == Qt::Key_Delete;
        if (edits && input_->text().isEmpty()) {
            event->ignore();
            return true;
        }
    }
    if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
    auto* key = static_cast<QKeyEvent*>(event);
    if (key->matches(QKeySequence::Paste) && !input_->isReadOnly()) {
        paste(QApplication::clipboard()->text());
        return true;
    }
    return keyPressed(key->key(), key->modifiers()) || QWidget::eventFilter(watched, event);
}

bool CommandLine::keyPressed(int key, Qt::KeyboardModifiers modifiers) {
    const bool offering = offered_->isVisible();
    switch (key) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (offering && offered_->currentRow() >= 0) takeOffered();
            enter();
            return true;
        case Qt::Key_Space:
            if (holdsBlanks(input_->text()) || modifiers != Qt::NoModifier) return false;
            // Space is Enter, except behind a word that may go on ("OPEN plan.dxf") and in a text of several
            // words.
            if (argumentWords_.contains(input_->text().toUpper()) || input_->text().contains(' '))
                return false;
            enter();
            return true;
        case Qt::Key_Tab:
            if (!offering) return false;
            if (offered_->currentRow() < 0) offered_->setCurrentRow(0);
            takeOffered();
            return true;
        case Qt::Key_Up:
        case Qt::Key_Down: {
            const int step = key == Qt::Key_Up ? -1 : 1;
            if (offering) {
                const int count = offered_->count();
                offered_->setCurrentRow((qMax(offered_->currentRow(), step < 0 ? 0 : -1) + step + count) %
                                        count);
            } else {
                recall(-step);
            }
            return true;
        }
        case Qt::Key_Escape:
            if (offering) {
                offered_->hide();
            } else if (!input_->text().isEmpty()) {
                clear();
            } else {
                emit brokenOff();
            }
            return true;
        default:
            return false;
    }
}

void CommandLine::enter() {
    if (input_->isReadOnly()) return;
    const QString line = input_->text();
    clear();
    recalled_ = -1;
    if (!line.trimmed().isEmpty() && (entered_.isEmpty() || entered_.last() != line)) {
        entered_.removeAll(line);
        entered_.append(line);
    }
    emit lineEntered(line);
}

/// `step` back into the past, or forward again with -1.
void CommandLine::recall(int step) {
    const int last = static_cast<int>(entered_.size()) - 1;
    if (recalled_ < 0 && step < 0) return;
    if (recalled_ < 0) unfinished_ = input_->text();
    const int place = recalled_ < 0 ? last : recalled_ - step;
    if (place < 0) return;
    if (place > last) {
        recalled_ = -1;
        input_->setText(unfinished_);
        return;
    }
    recalled_ = place;
    input_->setText(entered_[place]);
}

void CommandLine::offer() {
    offered_->clear();
    const QString begun = input_->text().trimmed().toUpper();
    if (begun.size() >= kOfferFrom && !holdsBlanks(begun)) {
        QStringList middles;
        for (const QString& word : words_) {
            if (word.startsWith(begun)) {
                offered_->addItem(word);
            } else if (word.contains(begun)) {
                middles.append(word);
            }
        }
        offered_->addItems(middles);
    }
    const bool whole = offered_->count() == 1 && offered_->item(0)->text() == begun;
    if (offered_->count() == 0 || whole || !isVisible()) {
        offered_->hide();
        return;
    }
    const int rows = qMin(offered_->count(), kOfferedRows);
    const int height = rows * offered_->sizeHintForRow(0) + 4;
    const QPoint corner = frame_->mapToGlobal(QPoint(input_->x(), 0));
    offered_->setGeometry(corner.x(), corner.y() - height - 2, 220, height);
    offered_->show();
}

void CommandLine::takeOffered() {
    if (offered_->currentItem() != nullptr) input_->setText(offered_->currentItem()->text());
    offered_->hide();
}

/// Several lines run one after the other, the last one waits for Enter.
void CommandLine::paste(const QString& text) {
    QStringList lines = text.split('\n');
    for (QString& line : lines) line.remove('\r');
    for (qsizetype i = 0; i + 1 < lines.size(); ++i) {
        input_->insert(lines[i]);
        enter();
    }
    input_->insert(lines.last());
    offer();
}

void CommandLine::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) history_->setAccessibleName(tr("Command history"));
}

void CommandLine::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    fitHint();
}

void CommandLine::hideEvent(QHideEvent* event) {
    offered_->hide();
    QWidget::hideEvent(event);
}

}  // namespace window
