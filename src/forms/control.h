#pragma once

#include "basic/error.h"
#include "forms/change.h"
#include "forms/twips.h"

#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace forms {

class Form;

enum class Kind {
    Label,
    Button,
    CheckBox,
    OptionButton,
    TextBox,
    ListBox,
    ComboBox,
    Frame,
    PictureBox,
    Line,
    ListView,
    FileDialog
};

/// The properties that not every kind of control has.
enum class Property { Caption, Enabled, Visible, Bounds, HelpContextId, ToolTipText, Focus };

/// Whether controls of a kind have a property; the table stands in control.cpp.
bool hasProperty(Kind kind, Property property);
/// The kind's name for messages, such as "check box".
const char* kindName(Kind kind);

/// Base of all controls. A control is a member of its dialog's class, so the order of declaration is the
/// order of the form's collection of controls. A property that the kind lacks raises kNoSuchMember, read or
/// written.
///
/// A dialog's constructor sets the design state; events are raised only once the form is initialised.
class Control {
  public:
    Control(Form& form, std::string name, Kind kind);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control() = default;

    Form& form() const { return form_; }
    const std::string& name() const { return name_; }
    Kind kind() const { return kind_; }
    bool has(Property property) const { return hasProperty(kind_, property); }

    /// The frame or picture box that holds this control; null for the form itself. Options with the same
    /// container form one group.
    Control* container() const { return container_; }
    /// Design: places the control on the form, or in a container.
    void place(Twips left, Twips top, Twips width, Twips height);
    void place(Control& container, Twips left, Twips top, Twips width, Twips height);
    /// For a control without bounds of its own.
    void setContainer(Control& container) { container_ = &container; }

    const std::string& caption() const;
    void setCaption(std::string_view caption);
    bool enabled() const;
    void setEnabled(bool enabled);
    bool visible() const;
    void setVisible(bool visible);
    int helpContextId() const;
    void setHelpContextId(int context);
    const std::string& toolTipText() const;
    void setToolTipText(std::string_view text);

    const Bounds& bounds() const;
    Twips left() const { return bounds().left; }
    Twips top() const { return bounds().top; }
    Twips width() const { return bounds().width; }
    Twips height() const { return bounds().height; }
    void setLeft(Twips left);
    void setTop(Twips top);
    void setWidth(Twips width);
    void setHeight(Twips height);

    /// Makes this the form's active control; the one before and this one are told. Raises kInvalidCall when
    /// form, control or one of its containers isn't visible or isn't enabled, kNoSuchMember for a kind that
    /// takes no focus.
    void setFocus();

    /// Visible and enabled, counting the containers, not the form. What a short container cuts off isn't
    /// shown.
    bool shown() const;
    bool operable() const;
    /// Whether the control lies wholly beyond the edge of its container.
    bool isCutOff() const;

    // The design state, which an unload brings back without an event. The form calls these.
    virtual void keepDesign() { design_ = state_; }
    virtual void restoreDesign() { state_ = design_; }
    /// Takes caption and help context, as translation set them, over into the kept design.
    void keepCaption();

  protected:
    /// Tells the screen, if the form is up, what of the control is to be drawn anew.
    void changed(Change change);
    template <typename... Parameters, typename... Arguments>
    void raise(const std::function<void(Parameters...)>& handler, Arguments&&... arguments) {
        if (handler && live()) handler(std::forward<Arguments>(arguments)...);
    }

  private:
    friend class Form;
    struct State {
        std::string caption;
        std::string toolTipText;
        Bounds bounds;
        int helpContextId = 0;
        bool enabled = true;
        bool visible = true;
    };

    bool live() const;
    void require(Property property) const;
    template <typename Value, typename NewValue>
    void assign(Value& value, const NewValue& newValue, Change change);

    Form& form_;
    std::string name_;
    Kind kind_;
    Control* container_ = nullptr;
    State state_;
    State design_;
};

}  // namespace forms
