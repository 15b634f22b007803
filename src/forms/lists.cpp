#include "forms/lists.h"

#include "basic/text.h"

#include <algorithm>

namespace forms {

namespace {
const std::string kNoEntry;
}  // namespace

const std::string& ListControl::list(int index) const {
    if (index < 0 || index >= listCount()) return kNoEntry;
    return state_.entries[static_cast<std::size_t>(index)];
}

void ListControl::addItem(std::string_view text) {
    if (!sorted_) {
        addItem(text, listCount());
        return;
    }
    auto greater = [](std::string_view added, const std::string& entry) {
        return basic::compareText(added, entry) < 0;
    };
    auto place = std::upper_bound(state_.entries.begin(), state_.entries.end(), text, greater);
    addItem(text, static_cast<int>(place - state_.entries.begin()));
}

void ListControl::addItem(std::string_view text, int index) {
    if (index < 0 || index > listCount()) throw basic::Error(basic::kInvalidCall);
    state_.entries.emplace(state_.entries.begin() + index, text);
    // The current entry stays current when others move it down.
    if (index <= state_.listIndex) {
        ++state_.listIndex;
        changed(Change::Selection);
    }
    changed(Change::Entries);
}

void ListControl::clear() {
    state_.entries.clear();
    state_.listIndex = -1;
    changed(Change::Entries);
    changed(Change::Selection);
}

void ListControl::setListIndex(int index) {
    if (index < -1 || index >= listCount()) throw basic::Error(basic::kInvalidProperty);
    if (index == state_.listIndex) return;
    moveTo(index);
    if (index >= 0 || blankingRaisesClick()) raise(onClick);
}

void ListControl::choose(int index) {
    if (index < 0 || index >= listCount()) throw basic::Error(basic::kInvalidProperty);
    moveTo(index);
    raise(onClick);
}

int ListControl::indexOf(std::string_view text) const {
    auto found = std::find(state_.entries.begin(), state_.entries.end(), text);
    return found == state_.entries.end() ? -1 : static_cast<int>(found - state_.entries.begin());
}

void ListControl::moveTo(int index) {
    state_.listIndex = index;
    changed(Change::Selection);
}

void ListControl::keepDesign() {
    Control::keepDesign();
    design_ = state_;
}

void ListControl::restoreDesign() {
    Control::restoreDesign();
    state_ = design_;
}

bool ListBox::selected(int index) const {
    if (index < 0 || index >= listCount()) throw basic::Error(basic::kInvalidProperty);
    return index == listIndex();
}

void ListBox::setSelected(int index, bool selected) {
    if (index < 0 || index >= listCount()) throw basic::Error(basic::kInvalidProperty);
    if (selected) {
        choose(index);
    } else if (index == listIndex()) {
        setListIndex(-1);
    }
}

const std::string& ComboBox::text() const { return editable() ? state_.text : list(listIndex()); }

void ComboBox::setText(std::string_view text) {
    if (!editable()) {
        const int index = indexOf(text);
        if (index < 0) throw basic::Error(basic::kReadOnlyText);
        setListIndex(index);
        return;
    }
    if (text == state_.text) return;
    setField(text);
    state_.listIndex = indexOf(text);
    changed(Change::Selection);
    raise(onChange);
}

void ComboBox::setField(std::string_view text) {
    if (text == state_.text) return;
    state_.text = text;
    if (editable()) changed(Change::Text);
}

void ComboBox::clear() {
    setField({});
    ListControl::clear();
}

void ComboBox::moveTo(int index) {
    setField(list(index));
    ListControl::moveTo(index);
}

}  // namespace forms
