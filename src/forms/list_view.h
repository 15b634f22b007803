#pragma once

#include "forms/control.h"
#include "forms/keys.h"

#include <deque>
#include <string>
#include <vector>

namespace forms {

class ListView;

struct ColumnHeader {
    std::string text;
    Twips width = 0;
};

/// The columns of a list view, counted from 1. The first column shows the rows' texts, the others their
/// sub-items.
class ColumnHeaders {
  public:
    explicit ColumnHeaders(ListView& view) : view_(view) {}
    int count() const { return static_cast<int>(headers_.size()); }
    void add(std::string_view text, Twips width);
    /// Raise kSubscript for an index outside the columns.
    const ColumnHeader& item(int index) const;
    void setText(int index, std::string_view text);
    void setWidth(int index, Twips width);
    void clear();

  private:
    friend class ListView;
    ListView& view_;
    std::vector<ColumnHeader> headers_;
};

/// One row. It lives until the rows are cleared.
class ListItem {
  public:
    ListItem(ListView& view, int index, std::string_view text) : view_(&view), index_(index), text_(text) {}

    /// The row's place, from 1.
    int index() const { return index_; }
    const std::string& text() const { return text_; }
    void setText(std::string_view text);
    /// A sub-item, from 1; empty until it is set. An index beyond the columns raises kInvalidProperty.
    const std::string& subItem(int index) const;
    void setSubItem(int index, std::string_view text);

  private:
    void requireColumn(int index) const;

    ListView* view_;
    int index_;
    std::string text_;
    std::vector<std::string> subItems_;
};

/// The rows of a list view, counted from 1.
class ListItems {
  public:
    explicit ListItems(ListView& view) : view_(view) {}
    int count() const { return static_cast<int>(items_.size()); }
    /// Adds a row at the end. The first row becomes the selected one.
    ListItem& add(std::string_view text);
    /// Raise kSubscript for an index outside the rows.
    ListItem& item(int index);
    const ListItem& item(int index) const;
    /// Takes away all rows, and with them the selection.
    void clear();

  private:
    friend class ListView;
    ListView& view_;
    std::deque<ListItem> items_;
};

/// A table in report view: columns, and rows of which one is selected from the moment there are any.
class ListView : public Control {
  public:
    ListView(Form& form, std::string name);

    ColumnHeaders& columnHeaders() { return headers_; }
    const ColumnHeaders& columnHeaders() const { return headers_; }
    ListItems& listItems() { return items_; }
    const ListItems& listItems() const { return items_; }

    bool hasSelectedItem() const { return selected_ > 0; }
    /// Raises kObjectNotSet when no row is selected.
    ListItem& selectedItem();
    const ListItem& selectedItem() const;
    /// Selects a row from code, which raises nothing. Raises kSubscript for an index outside the rows.
    void selectItem(int index);

    /// Whether the selection stops being drawn while the list has no focus.
    bool hideSelection() const { return hideSelection_; }
    void setHideSelection(bool hide);

    std::function<void()> onClick;
    std::function<void(ListItem& item)> onItemClick;
    std::function<void(bool& cancel)> onBeforeLabelEdit;
    std::function<void(Key key)> onKeyDown;  ///< raised before the key moves the selection

    // The user's acts, see forms/acts.h.
    void pressRow(int index);  ///< select, ItemClick, Click
    void pressOutside();       ///< Click alone: outside the rows
    /// Select, BeforeLabelEdit; whether the edit is let through. It ends with endEdit, or with the rows.
    bool beginEdit(int index);
    /// Gives the row in edit its text, which raises nothing.
    void endEdit(std::string_view text);
    /// The row in edit; 0 for none.
    int editedRow() const { return editedRow_; }
    void pressKey(Key key);  ///< KeyDown alone
    /// The row that a key moves the selection to, the same one for a key that moves nothing; 0 without rows.
    int rowAfter(Key key) const;

    void keepDesign() override;
    void restoreDesign() override;

  private:
    friend class ColumnHeaders;
    friend class ListItem;
    friend class ListItems;

    ColumnHeaders headers_;
    ListItems items_;
    int selected_ = 0;
    int editedRow_ = 0;
    bool hideSelection_ = true;

    std::vector<ColumnHeader> designHeaders_;
    std::deque<ListItem> designRows_;
    bool designHideSelection_ = true;
};

}  // namespace forms
