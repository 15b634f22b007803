#include "forms/form.h"

#include "basic/text.h"
#include "forms/acts.h"
#include "forms/screen.h"

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
    ensureLoaded();
    owner_ = owner;
    screen_ = &screen;
    visible_ = true;
    if (activeControl_ == nullptr || !activeControl_->shown() || !activeControl_->operable()) focusFirst();
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

void Form::focusFirst() {
    activeControl_ = nullptr;
    for (Control* control : controls_) {
        if (control->has(Property::Focus) && control->shown() && control->operable()) {
            activeControl_ = control;
            return;
        }
    }
}

void Form::changed() {
    if (drawn_) screen_->changed(*this);
}

void Form::setCaption(std::string_view caption) {
    if (state_.caption == caption) return;
    state_.caption = caption;
    changed();
}

void Form::setIcon(std::string_view icon) {
    if (state_.icon == icon) return;
    state_.icon = icon;
    changed();
}

void Form::setMousePointer(int shape) {
    if (state_.mousePointer == shape) return;
    state_.mousePointer = shape;
    changed();
}

void Form::moveTo(Twips left, Twips top) {
    if (left == state_.bounds.left && top == state_.bounds.top) return;
    state_.bounds.left = left;
    state_.bounds.top = top;
    changed();
}

void Form::resizeTo(Twips width, Twips height) {
    if (width == state_.bounds.width && height == state_.bounds.height) return;
    state_.bounds.width = width;
    state_.bounds.height = height;
    changed();
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
