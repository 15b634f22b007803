#include "faces/qt/qt_screen.h"

#include "faces/qt/form_window.h"
#include "faces/qt/input_events.h"
#include "faces/qt/qt_text.h"
#include "forms/file_dialog.h"
#include "forms/form.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QEvent>
#include <QEventLoop>
#include <QFileDialog>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <algorithm>

namespace qt_face {

namespace {

using forms::Answer;
using forms::MessageDialog;

/// A box's property: Escape and the close box answer nothing, yes or no must be said.
constexpr char kMustAnswer[] = "mustAnswer";

struct BoxButton {
    Answer answer;
    const char* word;
    QMessageBox::ButtonRole role;
};

std::vector<BoxButton> buttonsOf(MessageDialog::Buttons buttons) {
    switch (buttons) {
        case MessageDialog::Buttons::OkCancel:
            return {{Answer::Ok, "OK", QMessageBox::AcceptRole},
                    {Answer::Cancel, "Cancel", QMessageBox::RejectRole}};
        case MessageDialog::Buttons::YesNo:
            return {{Answer::Yes, "Yes", QMessageBox::YesRole}, {Answer::No, "No", QMessageBox::NoRole}};
        case MessageDialog::Buttons::Ok:
            break;
    }
    return {{Answer::Ok, "OK", QMessageBox::AcceptRole}};
}

QMessageBox::Icon iconOf(MessageDialog::Icon icon) {
    switch (icon) {
        case MessageDialog::Icon::Exclamation:
            return QMessageBox::Warning;
        case MessageDialog::Icon::Information:
            return QMessageBox::Information;
        case MessageDialog::Icon::None:
            break;
    }
    return QMessageBox::NoIcon;
}

/// "Drawings (*.dxf *.DXF)": the toolkit's own dialog tells capitals apart, drafters' file names don't.
QString filterOf(const forms::FileDialog::FilterEntry& entry, const QtHooks& hooks) {
    QStringList wanted;
    for (const std::string& pattern : entry.patterns) wanted << toQt(pattern).trimmed();
    if (hooks.patterns) wanted = hooks.patterns(wanted);
    QStringList patterns;
    for (const QString& text : wanted) {
        for (const QString& form : {text == "*.*" ? QString("*") : text, text.toUpper(), text.toLower()})
            if (!patterns.contains(form) && !(text == "*.*" && form == text)) patterns << form;
    }
    QString label = toShown(entry.label);
    const qsizetype bracket = label.indexOf('(');
    if (bracket > 0) label.truncate(bracket);
    return label.trimmed() + " (" + patterns.join(' ') + ')';
}

}  // namespace

QtScreen::QtScreen(QtHooks hooks) : hooks_(std::move(hooks)) { qApp->installEventFilter(this); }

QtScreen::~QtScreen() = default;

FormWindow* QtScreen::find(const forms::Form& form) const {
    const auto found = shown_.find(&form);
    return found == shown_.end() ? nullptr : found->second.window.get();
}

QWidget* QtScreen::windowOf(const forms::Form& form) const { return find(form); }

QWidget* QtScreen::top() const {
    if (!boxes_.empty()) return boxes_.back();
    return stack_.empty() ? nullptr : stack_.back();
}

QWidget* QtScreen::owner() const {
    if (QWidget* window = top()) return window;
    return hooks_.parent ? hooks_.parent() : nullptr;
}

QString QtScreen::word(const char* english) const {
    return hooks_.word ? hooks_.word(english) : QString(english);
}

void QtScreen::flushAll() {
    for (FormWindow* window : stack_) window->flush();
}

/// A dialog comes back to its place; else it stands where its settings, the program or the middle of its
/// owner put it, in reach on a screen that is there.
void QtScreen::place(FormWindow& window) {
    const forms::Form& form = window.form();
    const auto last = places_.find(form.name());
    const QWidget* over = hooks_.parent ? hooks_.parent() : nullptr;
    const QScreen* screen = over != nullptr ? over->screen() : QGuiApplication::primaryScreen();
    QRect area = screen->availableGeometry();
    std::optional<QPoint> wanted;
    if (last != places_.end()) {
        wanted = last->second;
    } else if (form.left() != 0 || form.top() != 0) {
        wanted = QPoint(window.toPixels(form.left()), window.toPixels(form.top()));
    } else if (hooks_.place) {
        wanted = hooks_.place(form, window.frameGeometry().size());
    }
    if (!wanted) {
        const QRect middle = over != nullptr ? over->frameGeometry() : area;
        wanted = middle.center() - QRect(QPoint(), window.size()).center();
    }
    if (const QScreen* own = QGuiApplication::screenAt(*wanted)) area = own->availableGeometry();
    const QSize size = window.frameGeometry().size();
    wanted->setX(std::clamp(wanted->x(), area.left(), std::max(area.left(), area.right() - size.width())));
    wanted->setY(std::clamp(wanted->y(), area.top(), std::max(area.top(), area.bottom() - size.height())));
    window.move(*wanted);
}

void QtScreen::runModal(forms::Form& form) {
    flushAll();
    QWidget* over = owner();
    Shown& shown = shown_[&form];
    if (!shown.window) shown.window = std::make_unique<FormWindow>(form, over, hooks_);
    FormWindow& window = *shown.window;
    ++shown.depth;
    stack_.push_back(&window);
    std::exception_ptr failure;
    try {
        window.run([&] {
            place(window);
            window.show();
            window.raise();
            window.activateWindow();
            if (hooks_.shown) hooks_.shown(form, window);
        });
    } catch (...) {
        failure = std::current_exception();
    }
    if (form.visible()) {
        if (failure) {
            hidden(form);
        } else {
            form.hide();  // the program ends: its dialogs go with it
        }
    }
    if (--shown_[&form].depth == 0) shown_.erase(&form);
    if (failure) std::rethrow_exception(failure);
}

void QtScreen::hidden(forms::Form& form) {
    const auto up = std::find_if(stack_.begin(), stack_.end(),
                                 [&](const FormWindow* window) { return &window->form() == &form; });
    if (up == stack_.end()) return;
    FormWindow* window = *up;
    stack_.erase(up);
    places_[form.name()] = window->pos();
    window->leave();
    if (hooks_.hidden) hooks_.hidden(form);
}

void QtScreen::changed(forms::Form& form, forms::Change change) {
    if (FormWindow* window = find(form)) window->mark(change);
}

void QtScreen::changed(forms::Control& control, forms::Change change) {
    if (FormWindow* window = find(control.form())) window->mark(control, change);
}

void QtScreen::runBox(QDialog& box) {
    flushAll();
    QGuiApplication::setOverrideCursor(Qt::ArrowCursor);  // also over an hourglass
    boxes_.push_back(&box);
    if (hooks_.boxUp) hooks_.boxUp(true);
    QEventLoop loop;
    QObject::connect(&box, &QDialog::finished, &loop, &QEventLoop::quit);
    box.setModal(false);
    box.show();
    box.raise();
    box.activateWindow();
    // What the program says of rows may have changed with the box.
    for (FormWindow* window : stack_)
        for (auto* view : window->findChildren<QAbstractItemView*>()) view->viewport()->update();
    loop.exec();
    boxes_.pop_back();
    QGuiApplication::restoreOverrideCursor();
    if (hooks_.boxUp) hooks_.boxUp(false);
    if (!stack_.empty()) stack_.back()->activateWindow();
}

Answer QtScreen::messageBox(const MessageDialog& box) {
    QMessageBox drawn(owner());
    drawn.setObjectName("messageBox");
    drawn.setTextFormat(Qt::PlainText);
    drawn.setWindowTitle(toShown(box.title.empty() ? "Vorlane" : box.title));
    drawn.setText(toShown(box.text));
    drawn.setIcon(iconOf(box.icon));
    const std::vector<BoxButton> buttons = buttonsOf(box.buttons);
    std::map<QAbstractButton*, Answer> answers;
    for (const BoxButton& button : buttons) {
        QPushButton* made = drawn.addButton(word(button.word), button.role);
        made->setObjectName(button.word);
        answers[made] = button.answer;
        if (&button == &buttons.front()) drawn.setDefaultButton(made);
        if (&button == &buttons.back()) drawn.setEscapeButton(made);
    }
    drawn.setProperty(kMustAnswer, box.buttons == MessageDialog::Buttons::YesNo);
    runBox(drawn);
    const auto answer = answers.find(drawn.clickedButton());
    return answer != answers.end() ? answer->second : buttons.back().answer;
}

std::optional<std::string> QtScreen::fileDialog(const forms::FileDialog& dialog, forms::FileDialogMode mode) {
    const bool isOpen = mode == forms::FileDialogMode::Open;
    QFileDialog drawn(owner());
    drawn.setObjectName("fileDialog");
    const QString title = toShown(dialog.dialogTitle());
    drawn.setWindowTitle(title.isEmpty() ? word(isOpen ? "Open" : "Save as") : title);
    drawn.setAcceptMode(isOpen ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
    drawn.setFileMode(isOpen ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    QStringList filters;
    for (const auto& entry : dialog.filterEntries()) filters << filterOf(entry, hooks_);
    if (!filters.isEmpty()) drawn.setNameFilters(filters);
    if (!dialog.initDir().empty()) drawn.setDirectory(toQt(dialog.initDir()));
    if (!isOpen && !dialog.filterEntries().empty()) {
        const QString suffix = toQt(dialog.filterEntries().front().patterns.front()).section('.', -1);
        if (!suffix.contains('*')) drawn.setDefaultSuffix(suffix);
    }
    runBox(drawn);
    const QStringList files = drawn.selectedFiles();
    if (drawn.result() != QDialog::Accepted || files.isEmpty()) return std::nullopt;
    return fromQt(files.front());
}

void QtScreen::reportFailure(std::int32_t number, const std::string& description) {
    MessageDialog box;
    box.title = "Vorlane";
    box.text = fromQt(word("Error")) + ' ' + std::to_string(number) + ": " + description;
    box.icon = MessageDialog::Icon::Exclamation;
    messageBox(box);
}

bool QtScreen::eventFilter(QObject* watched, QEvent* event) {
    if (!watched->isWidgetType()) return false;
    QWidget* window = static_cast<QWidget*>(watched)->window();
    if (!boxes_.empty() && window == boxes_.back() && window->property(kMustAnswer).toBool()) {
        const bool isEscape =
            (event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride) &&
            static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
        if (event->type() == QEvent::Close) event->ignore();
        return isEscape || event->type() == QEvent::Close;
    }
    if (stack_.empty() || !isInput(event->type())) return false;
    if (window == top() || dynamic_cast<FormWindow*>(window) == nullptr) return false;
    if (event->type() == QEvent::MouseButtonPress) {
        top()->raise();
        top()->activateWindow();
    }
    return true;
}

}  // namespace qt_face
