#pragma once

#include "desk/window/drawing_lists.h"
#include "desk/window/theme.h"

#include <QAbstractListModel>
#include <QHash>
#include <QPixmap>
#include <QStyledItemDelegate>
#include <functional>

namespace window {

/// Block rows for a list view.
class BlockListModel : public QAbstractListModel {
    Q_OBJECT

  public:
    using QAbstractListModel::QAbstractListModel;

    void setRows(std::vector<BlockRow> rows);
    const BlockRow& row(int index) const { return rows_[static_cast<std::size_t>(index)]; }
    int find(const QString& block) const;
    int rowCount(const QModelIndex& parent = {}) const override;
    /// The name to be shown; all of it for a screen reader.
    QVariant data(const QModelIndex& index, int role) const override;

  private:
    std::vector<BlockRow> rows_;
};

/// Paints a row of 44: picture 42 x 32, name, tags below, references at the right.
class BlockDelegate : public QStyledItemDelegate {
    Q_OBJECT

  public:
    using Picture = std::function<QPixmap(drawing::BlockId block, QSize box)>;

    BlockDelegate(const BlockListModel& model, Picture picture, QObject* parent);
    void setScheme(Scheme scheme);
    void forgetPictures() { pictures_.clear(); }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

  private:
    const BlockListModel& model_;
    Picture picture_;
    Scheme scheme_ = Scheme::Dark;
    mutable QHash<drawing::BlockId, QPixmap> pictures_;  ///< drawn when first seen
    mutable qreal ratio_ = 0;                            ///< of these
};

/// Ground of a row that is chosen (its list with or without the focus) or under the mouse; the colour that
/// text has on it.
QColor paintRowGround(QPainter& painter, const QStyleOptionViewItem& option, Scheme scheme);

}  // namespace window
