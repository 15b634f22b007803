#include "forms/form.h"

#include "basic/text.h"
#include "forms/acts.h"
#include "forms/buttons.h"
#include "forms/reading_order.h"
#include "forms/screen.h"

#include <algorithm>
#include <utility>

namespace forms {

Form::Form(std::string name, std::string tag, std::string caption, int helpContextId)
    : name_(std::move(name)), tag_(std::move(tag)) {
    state_.caption = std::move(caption);
    state_.helpContextId = helpContextId;
}

Form::~Form() = default;

void Form::initialize() {
    design_ = state_;
    for (Control* control : controls_) control->keepDesign();
    initialized_ = true;
    Form_Initialize();
}

void Form::rememberDesign() {
    design_.caption = state_.caption;
    design_.helpContextId = state_.helpContextId;
    design_.icon = state_.icon;
    for (Control* control : controls_) control->keepCaption();
}

void Form::ensureLoaded() {
    if (loaded_) return;
    // Set first: what Form_Load does with its own controls is no new first use.
    loaded_ = true;
    try {
        Form_Load();
    } catch (...) {
        loaded_ = false;
        throw;
    }
}

void Form::show(Screen& screen, Form* owner) {
    if (visible_) throw basic::Error(kAlreadyShown, "Form already displayed; can't show modally");
    if (nestedShows_ >= kDeepestShow) throw basic::Error(basic::kOutOfStackSpace);
    ensureLoaded();
    owner_ = owner;
    screen_ = &screen;
    visible_ = true;
    if (activeControl_ == nullptr || !activeControl_->shown() || !activeControl_->operable()) focusFirst();
    ++nestedShows_;
    struct Leave {
        int& shows;
        ~Leave() { --shows; }
    } const leave{nestedShows_};
    try {
        acts::guarded(screen, [this] { Form_Activate(); });
        if (!visible_) return;
        drawn_ = true;
        ++timesDrawn_;
        screen.runModal(*this);
    } catch (...) {
        visible_ = drawn_ = false;
        throw;
    }
}

void Form::hide() {
    if (!visible_) return;
    visible_ = false;
    const bool wasDrawn = drawn_;
    drawn_ = false;
    if (wasDrawn) screen_->hidden(*this);
}

void Form::unload() {
    hide();
    state_ = design_;
    for (Control* control : controls_) control->restoreDesign();
    activeControl_ = nullptr;
    loaded_ = false;
    timesDrawn_ = 0;
}

std::vector<Control*> Form::tabOrder() const {
    std::vector<Control*> order = tabFirst_;
    for (Control* control : readingOrder(*this)) {
        const bool isNew = std::find(tabFirst_.begin(), tabFirst_.end(), control) == tabFirst_.end();
        if (control->has(Property::Focus) && isNew) order.push_back(control);
    }
    return order;
}

bool Form::isStop(const Control& control) const {
    if (!control.shown() || !control.operable()) return false;
    if (control.kind() != Kind::OptionButton || static_cast<const OptionButton&>(control).value())
        return true;
    return std::none_of(controls_.begin(), controls_.end(), [&](const Control* other) {
        return other->kind() == Kind::OptionButton && other->container() == control.container() &&
               static_cast<const OptionButton*>(other)->value() && other->shown() && other->operable();
    });
}

Control* Form::nextStop(bool backwards) const {
    std::vector<Control*> order = tabOrder();
    if (backwards) std::reverse(order.begin(), order.end());
    const auto active = std::find(order.begin(), order.end(), activeControl_);
    if (active != order.end()) std::rotate(order.begin(), active + 1, order.end());
    const auto stop =
        std::find_if(order.begin(), order.end(), [&](const Control* control) { return isStop(*control); });
    return stop == order.end() ? nullptr : *stop;
}

void Form::settleFocus() {
    if (!visible_ || (activeControl_ != nullptr && activeControl_->shown() && activeControl_->operable()))
        return;
    moveFocus(nextStop(false));
}

void Form::focusFirst() {
    activeControl_ = nullptr;
    activeControl_ = firstFocus_ != nullptr && isStop(*firstFocus_) ? firstFocus_ : nextStop(false);
}

void Form::moveFocus(Control* control) {
    if (control == activeControl_) return;
    Control* before = std::exchange(activeControl_, control);
    if (before != nullptr) before->changed(Change::Focus);
    if (control != nullptr) control->changed(Change::Focus);
}

void Form::changed(Change change) {
    if (drawn_) screen_->changed(*this, change);
}

void Form::setCaption(std::string_view caption) {
    if (state_.caption == caption) return;
    state_.caption = caption;
    changed(Change::Caption);
}

void Form::setIcon(std::string_view icon) {
    if (state_.icon == icon) return;
    state_.icon = icon;
    changed(Change::Icon);
}

void Form::setMousePointer(int shape) {
    if (state_.mousePointer == shape) return;
    state_.mousePointer = shape;
    changed(Change::Pointer);
}

void Form::moveTo(Twips left, Twips top) {
    if (left == state_.bounds.left && top == state_.bounds.top) return;
    state_.bounds.left = left;
    state_.bounds.top = top;
    changed(Change::Bounds);
}

void Form::resizeTo(Twips width, Twips height) {
    if (width == state_.bounds.width && height == state_.bounds.height) return;
    state_.bounds.width = width;
    state_.bounds.height = height;
    changed(Change::Bounds);
    if (initialized_) Form_Resize();
}

Control& Form::control(int index) const {
    if (index < 0 || index >= controlCount()) throw basic::Error(basic::kSubscript);
    return *controls_[static_cast<std::size_t>(index)];
}

Control* Form::findControl(std::string_view name) const {
    for (Control* control : controls_) {
        if (basic::equalIgnoringCase(control->name(), name)) return control;
    }
    return nullptr;
}

}  // namespace forms
