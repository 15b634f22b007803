#pragma once

#include "forms/change.h"
#include "forms/control.h"
#include "forms/twips.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace forms {

class Screen;

/// A dialog as a model. A concrete dialog derives from it, has its controls as public members, lays them out
/// and wires their handlers in its constructor, and overrides the events that it handles.
///
/// Life: construction (the design state) - initialize() - Form_Load at the first show or use - shows and
/// hides - the frame's close box unloads: the controls are back in the design state, and the next use loads
/// again.
class Form {
  public:
    static constexpr int kAlreadyShown = 400;  ///< number of the failure of a second show
    /// What the frame takes of a form's width and height, in twips: its sides, its title bar and bottom.
    static constexpr Twips kFrameWidth = 120;
    static constexpr Twips kFrameHeight = 405;

    Form(std::string name, std::string tag, std::string caption, int helpContextId = 0);
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;
    virtual ~Form();

    const std::string& name() const { return name_; }
    /// The three-digit text that names the dialog in the language files; empty for a form that is never
    /// translated.
    const std::string& tag() const { return tag_; }

    /// Keeps the design state and runs Form_Initialize. The dialog's accessor calls it once, after
    /// construction.
    void initialize();
    bool initialized() const { return initialized_; }
    /// Takes the captions and help contexts that translation gave form and controls over into the design
    /// state.
    void rememberDesign();
    /// Runs Form_Load if the form isn't loaded. A failure leaves it not loaded, and comes out.
    void ensureLoaded();
    bool loaded() const { return loaded_; }

    static constexpr int kDeepestShow = 500;
    /// Shows the form modally and returns when it was hidden: loads it, activates it (a failure of
    /// Form_Activate is reported, not raised), then hands it to the screen unless it has hidden itself
    /// already. Raises kAlreadyShown when it is visible, kOutOfStackSpace when shows of it already nest
    /// kDeepestShow deep, each inside a handler of the one before.
    void show(Screen& screen, Form* owner = nullptr);
    /// Ends the show. Hiding what is hidden does nothing.
    void hide();
    /// Hides the form and brings the design state back; the next use loads it anew.
    void unload();
    bool visible() const { return visible_; }
    /// How often the screen has drawn the form since it was loaded.
    int timesDrawn() const { return timesDrawn_; }
    /// The form named as owner of the last show; null if there was none.
    Form* owner() const { return owner_; }
    /// The screen that the form is shown on; null while it isn't visible.
    Screen* screen() const { return visible_ ? screen_ : nullptr; }

    const std::string& caption() const { return state_.caption; }
    void setCaption(std::string_view caption);
    int helpContextId() const { return state_.helpContextId; }
    void setHelpContextId(int context) { state_.helpContextId = context; }
    /// The icon, by the name of its resource.
    const std::string& icon() const { return state_.icon; }
    void setIcon(std::string_view icon);
    /// The pointer's shape over the form: 0 the default, 11 the hourglass.
    int mousePointer() const { return state_.mousePointer; }
    void setMousePointer(int shape);

    /// The window with its frame; controls have kFrameWidth and kFrameHeight less.
    const Bounds& bounds() const { return state_.bounds; }
    Twips left() const { return state_.bounds.left; }
    Twips top() const { return state_.bounds.top; }
    Twips width() const { return state_.bounds.width; }
    Twips height() const { return state_.bounds.height; }
    void setLeft(Twips left) { moveTo(left, top()); }
    void setTop(Twips top) { moveTo(left(), top); }
    void moveTo(Twips left, Twips top);
    /// Each change of the size raises Form_Resize, once.
    void setWidth(Twips width) { resizeTo(width, height()); }
    void setHeight(Twips height) { resizeTo(width(), height); }
    void resizeTo(Twips width, Twips height);
    /// Design: whether the user may change the size.
    bool resizable() const { return resizable_; }
    void setResizable(bool resizable) { resizable_ = resizable; }
    /// Design: the least size that a user may give a resizable form; a face's frame stops there.
    void setLeastSize(Twips width, Twips height) { leastWidth_ = width, leastHeight_ = height; }
    Twips leastWidth() const { return leastWidth_; }
    Twips leastHeight() const { return leastHeight_; }

    int controlCount() const { return static_cast<int>(controls_.size()); }
    /// A control by its place in the order of creation, from 0. Raises kSubscript outside.
    Control& control(int index) const;
    /// A control by name without regard to case, null if there is none.
    Control* findControl(std::string_view name) const;
    const std::vector<Control*>& controls() const { return controls_; }

    /// The control that has the focus; null for none.
    Control* activeControl() const { return activeControl_; }
    /// The controls that can have the focus, in the order of the Tab key, hidden and disabled ones included:
    /// those of setTabOrder, then the others in reading order.
    std::vector<Control*> tabOrder() const;
    /// Where Tab, or Shift+Tab, goes from the active control: round the controls that are shown and operable.
    /// A group of options is one stop, at the option that is on. Null where there is no stop.
    Control* nextStop(bool backwards) const;
    /// Moves the focus on when the active control can't have it any more.
    void settleFocus();
    /// What F1 does: opens the help at a topic, or at its start page for context 0.
    void openHelp(int context) { Form_Help(context); }

  protected:
    /// Design: the first controls of the tab order, where it isn't the reading order.
    void setTabOrder(std::vector<Control*> controls) { tabFirst_ = std::move(controls); }
    /// Design: where a user starts; else the first of the tab order.
    void setFirstFocus(Control& control) { firstFocus_ = &control; }

    virtual void Form_Initialize() {}
    virtual void Form_Load() {}
    /// At each show.
    virtual void Form_Activate() {}
    /// At each change of size.
    virtual void Form_Resize() {}
    /// At F1, with the help context of the active control or else of the form.
    virtual void Form_Help(int /*context*/) {}

  private:
    friend class Control;
    struct State {
        std::string caption;
        std::string icon;
        Bounds bounds;
        int helpContextId = 0;
        int mousePointer = 0;
    };

    bool isStop(const Control& control) const;
    void focusFirst();
    void moveFocus(Control* control);
    void changed(Change change);

    std::string name_;
    std::string tag_;
    State state_;
    State design_;
    std::vector<Control*> controls_;
    Control* activeControl_ = nullptr;
    Control* firstFocus_ = nullptr;
    std::vector<Control*> tabFirst_;
    Form* owner_ = nullptr;
    Screen* screen_ = nullptr;
    bool initialized_ = false;
    bool loaded_ = false;
    bool visible_ = false;
    bool drawn_ = false;  ///< handed to the screen; a form that hides itself while it is activated never is
    int timesDrawn_ = 0;
    int nestedShows_ = 0;
    bool resizable_ = false;
    Twips leastWidth_ = 0;
    Twips leastHeight_ = 0;
};

}  // namespace forms
