#include "forms/list_view.h"

#include <algorithm>
#include <utility>

namespace forms {

namespace {

const std::string kNoText;
constexpr int kRowsPerPage = 10;

}  // namespace

void ColumnHeaders::add(std::string_view text, Twips width) {
    headers_.push_back({std::string(text), width});
    view_.changed(Change::Columns);
}

const ColumnHeader& ColumnHeaders::item(int index) const {
    if (index < 1 || index > count()) throw basic::Error(basic::kSubscript);
    return headers_[static_cast<std::size_t>(index - 1)];
}

void ColumnHeaders::setText(int index, std::string_view text) {
    const_cast<ColumnHeader&>(item(index)).text = text;
    view_.changed(Change::Columns);
}

void ColumnHeaders::setWidth(int index, Twips width) {
    const_cast<ColumnHeader&>(item(index)).width = width;
    view_.changed(Change::Columns);
}

void ColumnHeaders::clear() {
    headers_.clear();
    view_.changed(Change::Columns);
}

void ListItem::setText(std::string_view text) {
    if (text_ == text) return;
    text_ = text;
    view_->changed(Change::Rows);
}

void ListItem::requireColumn(int index) const {
    if (index < 1 || index >= view_->columnHeaders().count()) throw basic::Error(basic::kInvalidProperty);
}

const std::string& ListItem::subItem(int index) const {
    requireColumn(index);
    const auto place = static_cast<std::size_t>(index - 1);
    return place < subItems_.size() ? subItems_[place] : kNoText;
}

void ListItem::setSubItem(int index, std::string_view text) {
    requireColumn(index);
    const auto place = static_cast<std::size_t>(index - 1);
    if (place >= subItems_.size()) subItems_.resize(place + 1);
    if (subItems_[place] == text) return;
    subItems_[place] = text;
    view_->changed(Change::Rows);
}

ListItem& ListItems::add(std::string_view text) {
    ListItem& item = items_.emplace_back(view_, count() + 1, text);
    view_.changed(Change::Rows);
    if (view_.selected_ == 0) {
        view_.selected_ = 1;
        view_.changed(Change::Selection);
    }
    return item;
}

const ListItem& ListItems::item(int index) const {
    if (index < 1 || index > count()) throw basic::Error(basic::kSubscript);
    return items_[static_cast<std::size_t>(index - 1)];
}

ListItem& ListItems::item(int index) { return const_cast<ListItem&>(std::as_const(*this).item(index)); }

void ListItems::clear() {
    items_.clear();
    view_.selected_ = view_.editedRow_ = 0;
    view_.changed(Change::Rows);
    view_.changed(Change::Selection);
}

ListView::ListView(Form& form, std::string name)
    : Control(form, std::move(name), Kind::ListView), headers_(*this), items_(*this) {}

const ListItem& ListView::selectedItem() const {
    if (!hasSelectedItem()) throw basic::Error(basic::kObjectNotSet);
    return items_.item(selected_);
}

ListItem& ListView::selectedItem() { return const_cast<ListItem&>(std::as_const(*this).selectedItem()); }

void ListView::selectItem(int index) {
    if (index < 1 || index > items_.count()) throw basic::Error(basic::kSubscript);
    if (index == selected_) return;
    selected_ = index;
    changed(Change::Selection);
}

void ListView::setHideSelection(bool hide) {
    hideSelection_ = hide;
    changed(Change::Selection);
}

void ListView::pressRow(int index) {
    selectItem(index);
    raise(onItemClick, items_.item(index));
    raise(onClick);
}

void ListView::pressOutside() { raise(onClick); }

bool ListView::beginEdit(int index) {
    selectItem(index);
    bool cancel = false;
    raise(onBeforeLabelEdit, cancel);
    // The handler may have emptied the list or refused.
    editedRow_ = cancel || index > items_.count() ? 0 : index;
    return editedRow_ != 0;
}

void ListView::endEdit(std::string_view text) {
    if (const int row = std::exchange(editedRow_, 0); row != 0) items_.item(row).setText(text);
}

void ListView::pressKey(Key key) { raise(onKeyDown, key); }

int ListView::rowAfter(Key key) const {
    const int last = items_.count();
    if (last == 0) return 0;
    int target = selected_;
    switch (key) {
        case Key::Up:
            target -= 1;
            break;
        case Key::Down:
            target += 1;
            break;
        case Key::PageUp:
            target -= kRowsPerPage;
            break;
        case Key::PageDown:
            target += kRowsPerPage;
            break;
        case Key::Home:
            target = 1;
            break;
        case Key::End:
            target = last;
            break;
        default:
            break;
    }
    return std::clamp(target, 1, last);
}

void ListView::keepDesign() {
    Control::keepDesign();
    designHeaders_ = headers_.headers_;
    designRows_ = items_.items_;
    designHideSelection_ = hideSelection_;
}

void ListView::restoreDesign() {
    Control::restoreDesign();
    headers_.headers_ = designHeaders_;
    items_.items_ = designRows_;
    selected_ = items_.count() > 0 ? 1 : 0;
    editedRow_ = 0;
    hideSelection_ = designHideSelection_;
}

}  // namespace forms
