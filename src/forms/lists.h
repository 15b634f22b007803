#pragma once

#include "forms/control.h"

#include <string>
#include <vector>

namespace forms {

/// What list boxes and combo boxes share: entries from 0 and the current one.
class ListControl : public Control {
  public:
    int listCount() const { return static_cast<int>(state_.entries.size()); }
    /// The text of an entry; an index outside the list gives the empty text.
    const std::string& list(int index) const;
    /// Adds an entry: in its sorted place when the sorted style is on, else at the end.
    void addItem(std::string_view text);
    /// Adds an entry at an index, sorted style or not. Raises kInvalidCall beyond the end.
    void addItem(std::string_view text, int index);
    /// Empties the list; no entry is current any more. Raises no event.
    virtual void clear();

    /// The current entry, -1 for none.
    int listIndex() const { return state_.listIndex; }
    /// Makes an entry current, or none with -1. An entry that wasn't current raises Click. So does -1 where
    /// an entry was current, in an editable combo alone. An index outside the list raises kInvalidProperty.
    void setListIndex(int index);
    /// The first entry with exactly this text, -1 for none.
    int indexOf(std::string_view text) const;

    /// Design: entries are kept in text order, without regard to case.
    void setSorted(bool sorted) { sorted_ = sorted; }
    bool sorted() const { return sorted_; }

    std::function<void()> onClick;

    /// The user's choice of an entry, which raises Click also for the current one.
    void choose(int index);

    void keepDesign() override;
    void restoreDesign() override;

  protected:
    struct State {
        std::vector<std::string> entries;
        std::string text;  ///< an editable combo's field
        int listIndex = -1;
    };

    ListControl(Form& form, std::string name, Kind kind) : Control(form, std::move(name), kind) {}
    /// Makes an entry current without an event.
    virtual void moveTo(int index);
    virtual bool blankingRaisesClick() const { return false; }

    State state_;

  private:
    State design_;
    bool sorted_ = false;
};

/// A list of which at most one entry is selected.
class ListBox : public ListControl {
  public:
    ListBox(Form& form, std::string name) : ListControl(form, std::move(name), Kind::ListBox) {}

    /// The text of the selected entry, empty for none.
    const std::string& text() const { return list(listIndex()); }
    /// Whether an entry is selected; raises kInvalidProperty for an index outside the list.
    bool selected(int index) const;
    /// Selects an entry, which takes the selection from another and raises Click, also when it was selected
    /// already; or takes its selection away, which raises nothing.
    void setSelected(int index, bool selected);
    int selCount() const { return listIndex() < 0 ? 0 : 1; }
};

/// A combo box: a field and a list.
class ComboBox : public ListControl {
  public:
    enum class Style {
        DropDown,     ///< the field can be typed in
        DropDownList  ///< the field shows the current entry
    };
    ComboBox(Form& form, std::string name, Style style = Style::DropDown)
        : ListControl(form, std::move(name), Kind::ComboBox), style_(style) {}

    Style style() const { return style_; }
    bool editable() const { return style_ == Style::DropDown; }

    /// The field's text: of a drop-down list, that of the current entry.
    const std::string& text() const;
    /// An editable field takes any text; the first entry with exactly that text becomes current, else none,
    /// and a changed text raises Change, never Click. A drop-down list makes the entry of that text current,
    /// as setListIndex does; a text that it doesn't hold raises kReadOnlyText.
    void setText(std::string_view text);
    /// Empties an editable field too, without an event.
    void clear() override;

    std::function<void()> onChange;

  protected:
    void moveTo(int index) override;
    bool blankingRaisesClick() const override { return editable(); }

  private:
    void setField(std::string_view text);

    Style style_;
};

}  // namespace forms
