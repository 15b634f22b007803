#pragma once

#include <QWidget>

class QAbstractItemDelegate;
class QAbstractItemModel;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QListView;
class QToolButton;
class QVBoxLayout;

namespace window {

class PanelHead;

/// What the panels of blocks and layers share: a head, a search, a list, and a line that says why there is
/// none.
class ListPanel : public QWidget {
    Q_OBJECT

  protected:
    explicit ListPanel(QWidget* parent);
    /// Puts the parts one below the other, the search `belowSearch` px above the list, and connects them;
    /// `more` is the tool that opens the menu.
    void build(QAbstractItemModel* model, QAbstractItemDelegate* delegate, QToolButton* more,
               int belowSearch);
    /// A label for what there is to say instead of the list or below it.
    QLabel* addNote();
    /// The list of `count` rows, or `why` there are none; without a drawing no count is shown.
    void showCount(std::size_t count, bool hasDrawing, const QString& why);
    void nameSearch(const QString& name);

    virtual void filter() = 0;
    virtual void openMenu(const QPoint& place) = 0;

    QVBoxLayout* column_;
    PanelHead* head_;
    QLineEdit* search_;
    QListView* list_;
    QLabel* empty_;
};

}  // namespace window
