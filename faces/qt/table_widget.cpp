// List views.
#include "faces/qt/control_widget.h"
#include "faces/qt/form_window.h"
#include "faces/qt/qt_screen.h"
#include "faces/qt/qt_text.h"
#include "forms/controls.h"

#include <QAbstractTableModel>
#include <QFontDatabase>
#include <QHeaderView>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <QTreeView>
#include <algorithm>
#include <optional>

namespace qt_face {

namespace {

namespace acts = forms::acts;
using forms::Change;
using forms::Changes;
using forms::Control;
using forms::ListView;

/// The rows as the toolkit's views ask for them; it keeps their number alone, everything else stays in the
/// model.
class RowModel : public QAbstractTableModel {
  public:
    RowModel(ListView& view, QObject* parent, std::function<void(const QString&)> edited)
        : QAbstractTableModel(parent), view_(view), edited_(std::move(edited)) {}

    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows_; }
    int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : columns_; }

    QVariant data(const QModelIndex& index, int role) const override {
        switch (role) {
            case Qt::DisplayRole:
            case Qt::EditRole:
            case Qt::ToolTipRole: {
                const QString text = cell(index.row(), index.column());
                return role == Qt::ToolTipRole ? plainTip(text) : text;
            }
            case Qt::TextAlignmentRole:
                return alignmentOf(index.column());
            case Qt::FontRole:
                if (isNumeric(index.column())) return QFontDatabase::systemFont(QFontDatabase::FixedFont);
                return {};
            default:
                return {};
        }
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
        if (orientation != Qt::Horizontal || section >= view_.columnHeaders().count()) return {};
        const QString text = toShown(view_.columnHeaders().item(section + 1).text);
        if (role == Qt::DisplayRole) return text;
        if (role == Qt::ToolTipRole) return plainTip(text);
        if (role == Qt::TextAlignmentRole) return alignmentOf(section);
        return {};
    }
    Qt::ItemFlags flags(const QModelIndex& index) const override {
        const Qt::ItemFlags shown = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
        return index.column() == 0 ? shown | Qt::ItemIsEditable : shown;
    }
    bool setData(const QModelIndex&, const QVariant& value, int role) override {
        if (role != Qt::EditRole) return false;
        edited_(value.toString());
        return true;
    }

    /// Takes over what changed. Rows that only changed or came on top of the others leave the view where it
    /// is.
    void refresh() {
        const int rows = view_.listItems().count();
        if (rows < rows_ || columns_ != view_.columnHeaders().count()) {
            beginResetModel();
            rows_ = rows;
            columns_ = view_.columnHeaders().count();
            numeric_.clear();
            endResetModel();
            return;
        }
        numeric_.clear();
        if (rows > rows_) {
            beginInsertRows({}, rows_, rows - 1);
            rows_ = rows;
            endInsertRows();
        }
        if (rows_ > 0 && columns_ > 0) emit dataChanged(index(0, 0), index(rows_ - 1, columns_ - 1));
    }

  private:
    QString cell(int row, int column) const {
        if (row >= view_.listItems().count() || column >= view_.columnHeaders().count()) return {};
        const forms::ListItem& item = std::as_const(view_).listItems().item(row + 1);
        return toShown(column == 0 ? item.text() : item.subItem(column));
    }
    int alignmentOf(int column) const {
        return static_cast<int>(Qt::AlignVCenter | (isNumeric(column) ? Qt::AlignRight : Qt::AlignLeft));
    }
    /// Whether more than half of the cells that say something are numbers, read once for each drawing: one
    /// that is none stands out in its column.
    bool isNumeric(int column) const {
        if (numeric_.empty()) numeric_.resize(static_cast<std::size_t>(columns_));
        if (column < 0 || column >= columns_) return false;
        std::optional<bool>& known = numeric_[static_cast<std::size_t>(column)];
        if (!known) known = readsAsNumbers(column);
        return *known;
    }
    bool readsAsNumbers(int column) const {
        int numbers = 0;
        int others = 0;
        for (int row = 0; row < rows_; ++row) {
            const QString text = cell(row, column).trimmed();
            if (text.isEmpty()) continue;
            const auto isDigit = [](QChar c) { return c.isDigit() || QStringLiteral(".,+-eE").contains(c); };
            ++(std::all_of(text.begin(), text.end(), isDigit) ? numbers : others);
        }
        return numbers > others;
    }

    ListView& view_;
    std::function<void(const QString&)> edited_;
    int rows_ = 0;
    int columns_ = 0;
    mutable std::vector<std::optional<bool>> numeric_;
};

/// Draws no selection while the list has no focus, where the form wants it so.
class RowDelegate : public QStyledItemDelegate {
  public:
    RowDelegate(const ListView& view, QWidget& drawn, const QtHooks& hooks)
        : QStyledItemDelegate(&drawn), view_(view), drawn_(drawn), hooks_(hooks) {}

    /// A row that failed has the error's ground, and a bar of 3 pixels at its start.
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const bool failed = !faultOf(index).isEmpty();
        const QColor error = drawn_.palette().color(QPalette::BrightText);
        if (failed && (option.state & QStyle::State_Selected) == 0) {
            QColor ground = error;
            ground.setAlphaF(0.12F);
            painter->fillRect(option.rect, ground);
        }
        QStyledItemDelegate::paint(painter, option, index);
        if (failed && index.column() == 0)
            painter->fillRect(QRect(option.rect.topLeft(), QSize(3, option.rect.height())), error);
    }
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override {
        const QString fault = faultOf(index);
        if (event->type() != QEvent::ToolTip || fault.isEmpty())
            return QStyledItemDelegate::helpEvent(event, view, option, index);
        QToolTip::showText(event->globalPos(), plainTip(fault), view);
        return true;
    }

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        if (view_.hideSelection() && !drawn_.hasFocus()) option->state &= ~QStyle::State_Selected;
    }

  private:
    QString faultOf(const QModelIndex& index) const {
        return hooks_.rowFault && index.isValid() ? hooks_.rowFault(view_, index.row() + 1) : QString();
    }

    const ListView& view_;
    QWidget& drawn_;
    const QtHooks& hooks_;
};

/// A table that tells a click when the button is let go, and asks before a row is edited.
class Table : public QTreeView {
  public:
    explicit Table(QWidget* parent) : QTreeView(parent) {}

    std::function<void(int row)> clicked;  ///< from 1; 0 beside the rows
    std::function<void(int row)> moved;
    std::function<bool(int row)> mayEdit;

    bool isEditing() const { return state() == EditingState; }

  protected:
    void mousePressEvent(QMouseEvent* event) override {
        isPressed_ = true;
        hasHit_ = indexAt(event->position().toPoint()).isValid();
        QTreeView::mousePressEvent(event);
    }
    void mouseReleaseEvent(QMouseEvent* event) override {
        QTreeView::mouseReleaseEvent(event);
        isPressed_ = false;
        if (event->button() == Qt::LeftButton) clicked(hasHit_ ? currentIndex().row() + 1 : 0);
    }
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override {
        QTreeView::currentChanged(current, previous);
        if (!isPressed_ && current.isValid() && current.row() != previous.row()) moved(current.row() + 1);
    }
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override {
        if ((trigger & EditKeyPressed) != 0 && (index.column() != 0 || !mayEdit(index.row() + 1)))
            return false;
        return QTreeView::edit(index, trigger, event);
    }

  private:
    bool isPressed_ = false;
    bool hasHit_ = false;
};

std::optional<forms::Key> keyOf(int key, const QString& text) {
    switch (key) {
        case Qt::Key_Up:
            return forms::Key::Up;
        case Qt::Key_Down:
            return forms::Key::Down;
        case Qt::Key_PageUp:
            return forms::Key::PageUp;
        case Qt::Key_PageDown:
            return forms::Key::PageDown;
        case Qt::Key_Home:
            return forms::Key::Home;
        case Qt::Key_End:
            return forms::Key::End;
        case Qt::Key_Space:
            return forms::Key::Space;
        default:
            break;
    }
    if (text.isEmpty() || !text.front().isPrint()) return std::nullopt;
    return forms::Key::Character;
}

class TableWidget : public ControlWidget {
  public:
    TableWidget(FormWindow& window, Control& control, QWidget* parent) : ControlWidget(window, control) {
        table_ = new Table(parent);
        widget_ = table_;
        rows_ = new RowModel(view(), table_, [this](const QString& text) {
            window_.act(&control_, [&] {
                const int row = view().editedRow();
                const std::string before = row > 0 ? view().listItems().item(row).text() : std::string();
                acts::endEdit(control_, fromShown(before, text));
            });
        });
        table_->setModel(rows_);
        table_->setItemDelegate(new RowDelegate(view(), *table_, window.hooks()));
        table_->setRootIsDecorated(false);
        table_->setItemsExpandable(false);
        table_->setUniformRowHeights(true);
        table_->setAllColumnsShowFocus(true);
        table_->setAlternatingRowColors(true);
        table_->setEditTriggers(QAbstractItemView::EditKeyPressed);
        table_->setSelectionBehavior(QAbstractItemView::SelectRows);
        table_->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
        table_->header()->setStretchLastSection(false);
        table_->header()->setSectionsMovable(false);
        table_->header()->setMinimumSectionSize(8);
        wire();
    }
    bool isEditing() const override { return table_->isEditing(); }
    bool keyPressed(int key, const QString& text) override {
        const std::optional<forms::Key> pressed = keyOf(key, text);
        if (pressed) window_.act(&control_, [&] { acts::keyDown(control_, *pressed); });
        return !control_.form().visible();  // else the table moves by itself, and says where
    }

  protected:
    void drawOwn(Changes changes) override {
        const bool hasNewColumns = rows_->columnCount() != view().columnHeaders().count();
        if (changes.has(Change::Rows) || hasNewColumns) rows_->refresh();
        if (changes.has(Change::Columns) || changes.has(Change::Rows)) {
            if (rows_->columnCount() > 0)
                emit rows_->headerDataChanged(Qt::Horizontal, 0, rows_->columnCount() - 1);
            drawWidths();
        }
        if (changes.has(Change::Rows) || changes.has(Change::Selection)) drawSelection();
        if (changes.has(Change::Visible)) table_->setAccessibleName(window_.nameOf(control_));
    }

  private:
    ListView& view() const { return static_cast<ListView&>(control_); }

    void wire() {
        table_->clicked = [this](int row) {
            window_.act(&control_,
                        [&] { row > 0 ? acts::chooseIndex(control_, row) : acts::click(control_); });
        };
        table_->moved = [this](int row) {
            window_.act(&control_, [&] { acts::moveSelection(control_, row); });
        };
        table_->mayEdit = [this](int row) {
            bool isOpen = false;
            window_.act(&control_, [&] { isOpen = acts::beginEdit(control_, row); });
            return isOpen;
        };
        QObject::connect(
            table_->header(), &QHeaderView::sectionResized, table_, [this](int column, int, int width) {
                if (window_.isQuiet()) return;
                if (column < static_cast<int>(userWidths_.size()))
                    userWidths_[static_cast<std::size_t>(column)] = width;
                window_.act(nullptr,
                            [&] { acts::resizeColumn(control_, column + 1, window_.toTwips(width)); });
            });
        QObject::connect(table_->header(), &QHeaderView::sectionHandleDoubleClicked, table_,
                         [this](int column) { table_->resizeColumnToContents(column); });
    }
    /// A column is as wide as the model has it, or as its heading and its cells need as long as the user
    /// hasn't given it a width.
    void drawWidths() {
        const int columns = view().columnHeaders().count();
        if (static_cast<int>(userWidths_.size()) != columns)
            userWidths_.assign(static_cast<std::size_t>(columns), -1);
        const QAbstractItemView& drawn = *table_;
        for (int column = 0; column < columns; ++column) {
            int width = window_.toPixels(view().columnHeaders().item(column + 1).width);
            if (userWidths_[static_cast<std::size_t>(column)] != width)
                width = std::max(
                    {width, drawn.sizeHintForColumn(column), table_->header()->sectionSizeHint(column)});
            if (table_->columnWidth(column) != width) table_->setColumnWidth(column, width);
        }
    }
    void drawSelection() {
        const int row = view().hasSelectedItem() ? view().selectedItem().index() - 1 : -1;
        if (row < 0) {
            table_->clearSelection();
        } else if (table_->currentIndex().row() != row || !table_->selectionModel()->isRowSelected(row)) {
            table_->setCurrentIndex(rows_->index(row, 0));
        }
    }

    Table* table_;
    RowModel* rows_;
    std::vector<int> userWidths_;  ///< in pixels, -1 for a column that the user left alone
};

}  // namespace

std::unique_ptr<ControlWidget> makeTableWidget(FormWindow& window, Control& control, QWidget* parent) {
    return std::make_unique<TableWidget>(window, control, parent);
}

}  // namespace qt_face
