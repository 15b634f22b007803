#include "faces/qt/form_window.h"

#include "faces/qt/control_widget.h"
#include "faces/qt/qt_screen.h"
#include "faces/qt/qt_text.h"
#include "forms/accelerators.h"
#include "forms/controls.h"
#include "forms/reading_order.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QFocusEvent>
#include <QFontMetricsF>
#include <QKeyEvent>
#include <algorithm>
#include <cmath>

namespace qt_face {

namespace {

namespace acts = forms::acts;
using forms::Change;
using forms::Changes;
using forms::Control;
using forms::Form;
using forms::Kind;

constexpr int kHourglass = 11;

/// Fonts differ in how much lead their line height holds: a line is never less than 18 pixels to 13 of the
/// font.
double lineHeightOf(const QFontMetricsF& metrics, const QFont& font) {
    const double pixels = QFontInfo(font).pixelSize();
    return std::max(metrics.lineSpacing(), pixels * 18.0 / 13.0);
}

class FontMetric : public forms::TextMetric {
  public:
    FontMetric(const QFont& font, float scale) : metrics_(font), scale_(scale) {}
    forms::Twips width(std::string_view text) const override {
        return static_cast<float>(metrics_.horizontalAdvance(toShown(text))) / scale_;
    }

  private:
    QFontMetricsF metrics_;
    float scale_;
};

/// Enter in a text of several lines that can be edited is a line end.
bool isEnterOfText(const Control* control, int key) {
    if (control == nullptr || control->kind() != Kind::TextBox || key == Qt::Key_F1 || key == Qt::Key_Escape)
        return false;
    const auto& box = static_cast<const forms::TextBox&>(*control);
    return box.multiLine() && !box.locked();
}

/// The controls of some forms reach their frame at the right, which a flat frame shows: what is missing there
/// to the margin at the left.
forms::Twips missingEdge(const Form& form) {
    forms::Twips left = form.width();
    forms::Twips right = 0;
    for (const Control* control : form.controls()) {
        if (control->container() != nullptr || !control->has(forms::Property::Bounds) || !control->visible())
            continue;
        left = std::min(left, control->bounds().left);
        right = std::max(right, control->bounds().left + control->bounds().width);
    }
    return std::clamp(left - (form.width() - Form::kFrameWidth - right), 0.0f, left);
}

/// What a widget may have changed by itself while its user acted on it.
void addOwnChanges(Changes& changes) {
    for (const Change change : {Change::Value, Change::Text, Change::Selection, Change::Columns})
        changes.add(change);
}

}  // namespace

FormWindow::FormWindow(Form& form, QWidget* parent, const QtHooks& hooks)
    : QWidget(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                          Qt::WindowCloseButtonHint |
                          (form.resizable() ? Qt::WindowMaximizeButtonHint : Qt::WindowFlags())),
      form_(form),
      hooks_(hooks) {
    setObjectName(toQt(form.name()));
    makeWidgets();
    edge_ = missingEdge(form_);
}

FormWindow::~FormWindow() {
    ++quiet_;  // what the widgets tell as they go is no act
}

void FormWindow::makeWidgets() {
    ++quiet_;
    // A container's widget before those that it holds, and in the order that lays later ones on top.
    for (Control* control : forms::readingOrder(form_)) {
        QWidget* parent = control->container() != nullptr ? widgetOf(*control->container()) : this;
        if (auto made = makeWidget(*this, *control, parent)) widgets_[control] = std::move(made);
    }
    for (Control* control : form_.controls()) {
        if (control->kind() != Kind::Line) continue;
        QWidget* parent = control->container() != nullptr ? widgetOf(*control->container()) : this;
        widgets_[control] = makeWidget(*this, *control, parent);
    }
    for (const auto& [control, drawn] : widgets_) {
        drawn->widget()->setObjectName(toQt(control->name()));
        for (QObject* input : drawn->inputs()) {
            input->installEventFilter(this);
            controlOf_[input] = &drawn->control();
        }
    }
    --quiet_;
}

QWidget* FormWindow::widgetOf(const Control& control) const {
    const auto found = widgets_.find(&control);
    return found == widgets_.end() ? nullptr : found->second->widget();
}

// Measures.

/// The font's size decides, then the longest caption.
void FormWindow::measure() {
    ensurePolished();
    scale_ = static_cast<float>(lineHeightOf(QFontMetricsF(font()), font()) / forms::TextMetric::kLineHeight);
    growth_ = forms::growthToFit(form_, FontMetric(font(), scale_));
}

int FormWindow::toPixels(forms::Twips twips) const {
    return static_cast<int>(std::lround(twips * scale_ * growth_));
}

forms::Twips FormWindow::toTwips(int pixels) const { return static_cast<float>(pixels) / (scale_ * growth_); }

QRect FormWindow::placeOf(const forms::Bounds& bounds) const {
    const QPoint start(toPixels(bounds.left), toPixels(bounds.top));
    const QPoint end(toPixels(bounds.left + bounds.width), toPixels(bounds.top + bounds.height));
    return {start, QSize(end.x() - start.x(), end.y() - start.y())};
}

QSize FormWindow::insideOf(forms::Twips width, forms::Twips height) const {
    return {std::max(1, toPixels(width - Form::kFrameWidth + edge_)),
            std::max(1, toPixels(height - Form::kFrameHeight))};
}

// Drawing.

void FormWindow::run(const std::function<void()>& shown) {
    measure();
    giveAccelerators();
    dirty_.clear();
    place_ = {form_.left(), form_.top()};
    ++quiet_;
    drawForm(Changes::all());
    for (const auto& [control, drawn] : widgets_) drawn->draw(Changes::all());
    shown();
    drawFocus();
    --quiet_;

    QEventLoop loop;
    loops_.push_back(&loop);
    loop.exec();
    loops_.pop_back();
    if (failure_) std::rethrow_exception(std::exchange(failure_, nullptr));
}

void FormWindow::leave() {
    if (std::exchange(hasWaitCursor_, false)) QGuiApplication::restoreOverrideCursor();
    dirty_.clear();
    formDirty_ = {};
    ++quiet_;
    hide();
    --quiet_;
    if (!loops_.empty()) loops_.back()->quit();
}

void FormWindow::mark(Change change) {
    formDirty_.add(change);
    if (change == Change::Pointer) {  // at once: the work that it announces comes before the next drawing
        const bool waits = form_.mousePointer() == kHourglass;
        if (waits == hasWaitCursor_) return;
        hasWaitCursor_ = waits;
        waits ? QGuiApplication::setOverrideCursor(Qt::WaitCursor) : QGuiApplication::restoreOverrideCursor();
        return;
    }
    if (!std::exchange(isFlushPosted_, true))
        QMetaObject::invokeMethod(
            this, [this] { flush(); }, Qt::QueuedConnection);
}

void FormWindow::mark(Control& control, Change change) {
    dirty_[&control].add(change);
    if (!std::exchange(isFlushPosted_, true))
        QMetaObject::invokeMethod(
            this, [this] { flush(); }, Qt::QueuedConnection);
}

void FormWindow::flush() {
    isFlushPosted_ = false;
    if (!form_.visible() || (dirty_.empty() && !formDirty_.any())) return;
    ++quiet_;
    const auto dirty = std::exchange(dirty_, {});
    const bool isRelabelled = std::any_of(dirty.begin(), dirty.end(), [](const auto& entry) {
        return entry.second.has(Change::Caption) || entry.second.has(Change::Visible) ||
               entry.second.has(Change::Bounds);
    });
    const float growth = growth_;
    if (isRelabelled) measure(), giveAccelerators();
    if (growth_ != growth) {  // another language: all is laid out anew
        drawForm(Changes::all());
        for (const auto& [control, drawn] : widgets_) drawn->draw(Changes::all());
    } else {
        drawForm(std::exchange(formDirty_, {}));
        for (const auto& [control, changes] : dirty)
            if (const auto found = widgets_.find(control); found != widgets_.end())
                found->second->draw(changes);
        // A letter may have gone from one caption to another, and a container's size decides what it cuts
        // off.
        if (isRelabelled) {
            Changes caption;
            caption.add(Change::Caption);
            caption.add(Change::Visible);
            for (const auto& [control, drawn] : widgets_)
                if (dirty.find(&drawn->control()) == dirty.end()) drawn->draw(caption);
        }
    }
    formDirty_ = {};
    drawFocus();
    --quiet_;
}

void FormWindow::drawForm(Changes changes) {
    if (changes.has(Change::Caption)) setWindowTitle(toShown(form_.caption()));
    if (changes.has(Change::Icon) && hooks_.icon) setWindowIcon(hooks_.icon(form_.icon()));
    if (!changes.has(Change::Bounds)) return;
    const std::pair modelPlace{form_.left(), form_.top()};
    if (std::exchange(place_, modelPlace) != modelPlace) move(toPixels(form_.left()), toPixels(form_.top()));
    const QSize inside = insideOf(form_.width(), form_.height());
    if (form_.resizable()) {
        setMinimumSize(insideOf(form_.leastWidth(), form_.leastHeight()));
        resize(inside);
    } else {
        setFixedSize(inside);
    }
}

void FormWindow::drawFocus() {
    const Control* active = form_.activeControl();
    QWidget* widget = active != nullptr ? widgetOf(*active) : nullptr;
    if (widget == nullptr) {
        if (QWidget* focused = focusWidget()) focused->clearFocus();
    } else if (focusWidget() != widget && !widget->isAncestorOf(focusWidget())) {
        widget->setFocus(Qt::OtherFocusReason);
    }
}

void FormWindow::giveAccelerators() {
    letters_.clear();
    fields_.clear();
    for (const forms::Accelerator& given : forms::accelerators(form_)) {
        letters_[given.control] = given.position;
        if (given.field != nullptr) fields_[given.control] = given.field;
    }
}

QWidget* FormWindow::buddyOf(const Control& label) const {
    const auto found = fields_.find(&label);
    return found == fields_.end() ? nullptr : widgetOf(*found->second);
}

QString FormWindow::nameOf(const Control& control) const {
    for (const auto& [label, field] : fields_)
        if (field == &control) return toShown(label->caption()).remove(':').trimmed();
    return {};
}

QString FormWindow::captionOf(const Control& control, int room, int lines, bool marked, bool* isCut) const {
    QString text = toShown(control.caption());
    const auto letter = letters_.find(&control);
    qsizetype mark = -1;
    if (marked && letter != letters_.end())
        mark = toShown(std::string_view(control.caption()).substr(0, letter->second)).size();
    const QFontMetrics metrics(font());
    qsizetype start = 0;
    for (int line = 1; line < lines && metrics.horizontalAdvance(text.mid(start)) > room; ++line) {
        qsizetype blank = -1;
        for (qsizetype next = text.indexOf(' ', start); next >= 0; next = text.indexOf(' ', next + 1))
            if (metrics.horizontalAdvance(text.mid(start, next - start)) <= room) blank = next;
        if (blank < 0) break;
        text[blank] = '\n';
        start = blank + 1;
    }
    const bool tooLong = metrics.horizontalAdvance(text.mid(start)) > room;
    if (tooLong) text = text.left(start) + metrics.elidedText(text.mid(start), Qt::ElideMiddle, room);
    if (isCut != nullptr) *isCut = tooLong;
    if (!marked) return text;
    QString withMark;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (i == mark && !tooLong) withMark += '&';
        withMark += text[i];
        if (text[i] == '&') withMark += '&';
    }
    return withMark;
}

// Acts.

void FormWindow::act(Control* source, const std::function<void()>& act) {
    if (isQuiet() || !form_.visible()) return;
    if (source != nullptr) addOwnChanges(dirty_[source]);
    try {
        act();
    } catch (const forms::ActError&) {
        QApplication::beep();  // what the dialog doesn't allow just now
    } catch (...) {
        failure_ = std::current_exception();
        if (!loops_.empty()) loops_.back()->quit();
        return;
    }
    flush();
}

/// A key that no control takes.
void FormWindow::keyPressEvent(QKeyEvent* event) {
    if (!pressKey(nullptr, event->key())) QWidget::keyPressEvent(event);
}

void FormWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    act(nullptr, [&] { acts::closeBox(form_); });
}

void FormWindow::resizeEvent(QResizeEvent*) {
    if (!form_.resizable() || isQuiet() || size() == insideOf(form_.width(), form_.height())) return;
    act(nullptr, [&] {
        acts::resize(form_, toTwips(width()) - edge_ + Form::kFrameWidth,
                     toTwips(height()) + Form::kFrameHeight);
    });
}

void FormWindow::moveEvent(QMoveEvent*) {
    if (isQuiet() || !form_.visible()) return;
    place_ = {toTwips(x()), toTwips(y())};
    act(nullptr, [&] { acts::move(form_, place_.first, place_.second); });
}

/// Another font, as the desktop's settings change it, is another size.
void FormWindow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange) return;
    if (isQuiet() || !form_.visible()) return;
    ++quiet_;
    measure();
    drawForm(Changes::all());
    for (const auto& [control, drawn] : widgets_) drawn->draw(Changes::all());
    --quiet_;
}

/// Tab; the toolkit also asks when it disables the widget that has the focus, and then the model knows
/// better.
bool FormWindow::focusNextPrevChild(bool next) {
    if (isQuiet()) return false;
    act(nullptr, [&] { acts::key(form_, next ? forms::Key::Tab : forms::Key::ShiftTab); });
    return true;
}

bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
    const auto found = controlOf_.find(watched);
    if (found == controlOf_.end() || isQuiet()) return QWidget::eventFilter(watched, event);
    Control& control = *found->second;
    if (event->type() == QEvent::FocusIn) {
        focusIn(control, static_cast<QFocusEvent*>(event)->reason());
    } else if (event->type() == QEvent::KeyPress) {
        if (widgets_.at(&control)->isEditing()) return false;
        const auto* key = static_cast<QKeyEvent*>(event);
        const Qt::KeyboardModifiers others = key->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
        if (others != Qt::NoModifier) return false;
        if (pressKey(&control, key->key())) return true;
        return widgets_.at(&control)->keyPressed(key->key(), key->text());
    }
    return false;
}

/// The keys that mean the dialog as a whole; those of an open list, which is a window of its own, don't come
/// here.
bool FormWindow::pressKey(Control* control, int key) {
    if (isEnterOfText(control, key)) return false;
    forms::Key pressed{};
    switch (key) {
        case Qt::Key_F1:
            pressed = forms::Key::F1;
            break;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            pressed = forms::Key::Enter;
            break;
        case Qt::Key_Escape:
            pressed = forms::Key::Escape;
            break;
        default:
            return false;
    }
    act(control, [&] { acts::key(form_, pressed); });
    return true;
}

void FormWindow::focusIn(Control& control, Qt::FocusReason reason) {
    if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
        form_.activeControl() == &control)
        return;
    act(nullptr, [&] { acts::focus(control); });
}

}  // namespace qt_face
