#include "forms/control.h"

#include "forms/form.h"
#include "forms/screen.h"

#include <array>

namespace forms {

namespace {

struct KindTraits {
    const char* name;
    std::array<bool, 7> has;
};

// clang-format off
// Which kind has which property: rows in the order of Kind, columns in that of Property. A label can't have a help
// context of its own; lines and file dialogs can't be disabled.
constexpr bool o = false, X = true;
constexpr std::array kTraits = {
    //                           caption enabled visible bounds help tip focus
    KindTraits{"label",        {{X,      X,      X,      X,     o,   X,  o}}},
    KindTraits{"button",       {{X,      X,      X,      X,     X,   X,  X}}},
    KindTraits{"check box",    {{X,      X,      X,      X,     X,   X,  X}}},
    KindTraits{"option",       {{X,      X,      X,      X,     X,   X,  X}}},
    KindTraits{"text box",     {{o,      X,      X,      X,     X,   X,  X}}},
    KindTraits{"list",         {{o,      X,      X,      X,     X,   X,  X}}},
    KindTraits{"combo box",    {{o,      X,      X,      X,     X,   X,  X}}},
    KindTraits{"frame",        {{X,      X,      X,      X,     X,   X,  o}}},
    KindTraits{"picture box",  {{o,      X,      X,      X,     X,   X,  o}}},
    KindTraits{"line",         {{o,      o,      X,      o,     o,   o,  o}}},
    KindTraits{"list view",    {{o,      X,      X,      X,     X,   X,  X}}},
    KindTraits{"file dialog",  {{o,      o,      o,      o,     o,   o,  o}}},
};
// clang-format on
static_assert(kTraits.size() == static_cast<std::size_t>(Kind::FileDialog) + 1);

const KindTraits& traits(Kind kind) { return kTraits[static_cast<std::size_t>(kind)]; }

}  // namespace

bool hasProperty(Kind kind, Property property) {
    return traits(kind).has[static_cast<std::size_t>(property)];
}

const char* kindName(Kind kind) { return traits(kind).name; }

Control::Control(Form& form, std::string name, Kind kind) : form_(form), name_(std::move(name)), kind_(kind) {
    form_.controls_.push_back(this);
}

void Control::require(Property property) const {
    if (!has(property)) throw basic::Error(basic::kNoSuchMember);
}

bool Control::live() const { return form_.initialized(); }

void Control::changed(Change change) {
    if (form_.drawn_) form_.screen_->changed(*this, change);
}

template <typename Value, typename NewValue>
void Control::assign(Value& value, const NewValue& newValue, Change change) {
    if (value == newValue) return;
    value = newValue;
    changed(change);
}

void Control::place(Twips left, Twips top, Twips width, Twips height) {
    require(Property::Bounds);
    assign(state_.bounds, Bounds{left, top, width, height}, Change::Bounds);
}

void Control::place(Control& container, Twips left, Twips top, Twips width, Twips height) {
    container_ = &container;
    place(left, top, width, height);
}

const std::string& Control::caption() const {
    require(Property::Caption);
    return state_.caption;
}

void Control::setCaption(std::string_view caption) {
    require(Property::Caption);
    assign(state_.caption, caption, Change::Caption);
}

bool Control::enabled() const {
    require(Property::Enabled);
    return state_.enabled;
}

void Control::setEnabled(bool enabled) {
    require(Property::Enabled);
    assign(state_.enabled, enabled, Change::Enabled);
}

bool Control::visible() const {
    require(Property::Visible);
    return state_.visible;
}

void Control::setVisible(bool visible) {
    require(Property::Visible);
    assign(state_.visible, visible, Change::Visible);
}

int Control::helpContextId() const {
    require(Property::HelpContextId);
    return state_.helpContextId;
}

void Control::setHelpContextId(int context) {
    require(Property::HelpContextId);
    state_.helpContextId = context;
}

const std::string& Control::toolTipText() const {
    require(Property::ToolTipText);
    return state_.toolTipText;
}

void Control::setToolTipText(std::string_view text) {
    require(Property::ToolTipText);
    assign(state_.toolTipText, text, Change::ToolTip);
}

const Bounds& Control::bounds() const {
    require(Property::Bounds);
    return state_.bounds;
}

void Control::setLeft(Twips left) {
    require(Property::Bounds);
    assign(state_.bounds.left, left, Change::Bounds);
}

void Control::setTop(Twips top) {
    require(Property::Bounds);
    assign(state_.bounds.top, top, Change::Bounds);
}

void Control::setWidth(Twips width) {
    require(Property::Bounds);
    assign(state_.bounds.width, width, Change::Bounds);
}

void Control::setHeight(Twips height) {
    require(Property::Bounds);
    assign(state_.bounds.height, height, Change::Bounds);
}

bool Control::shown() const {
    if (!has(Property::Visible)) return false;
    return state_.visible && (container_ == nullptr || (container_->shown() && !isCutOff()));
}

bool Control::isCutOff() const {
    if (container_ == nullptr || !has(Property::Bounds)) return false;
    const Bounds& own = state_.bounds;
    const Bounds& box = container_->state_.bounds;
    return own.top >= box.height || own.left >= box.width || own.top + own.height <= 0 ||
           own.left + own.width <= 0;
}

bool Control::operable() const { return state_.enabled && (container_ == nullptr || container_->operable()); }

void Control::setFocus() {
    require(Property::Focus);
    if (!form_.visible() || !shown() || !operable()) throw basic::Error(basic::kInvalidCall);
    form_.moveFocus(this);
}

void Control::keepCaption() {
    design_.caption = state_.caption;
    design_.helpContextId = state_.helpContextId;
}

}  // namespace forms
