#include "desk/window/block_list_model.h"

#include "desk/window/panel.h"
#include "faces/qt/qt_text.h"

#include <QPainter>

namespace window {

namespace {

constexpr QSize kPicture{42, 32};
constexpr int kRowHeight = 44;

QString joined(const std::vector<std::string>& texts) {
    QStringList list;
    for (const std::string& text : texts) list.append(qt_face::toShown(text));
    return list.join(", ");
}

}  // namespace

void BlockListModel::setRows(std::vector<BlockRow> rows) {
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
}

int BlockListModel::find(const QString& block) const {
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        if (QString::fromStdString(rows_[i].name).compare(block, Qt::CaseInsensitive) == 0)
            return static_cast<int>(i);
    }
    return -1;
}

int BlockListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant BlockListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const BlockRow& shown = row(index.row());
    const QString name = qt_face::toShown(shown.name);
    if (role == Qt::DisplayRole) return name;
    if (role == Qt::AccessibleTextRole) {
        const QString references = tr("%n references", nullptr, static_cast<int>(shown.references));
        return tr("%1, %2, attributes: %3").arg(name, references, joined(shown.tags));
    }
    if (role == Qt::ToolTipRole && !shown.tags.empty())
        return qt_face::plainTip(name + "\n" + joined(shown.tags));
    return {};
}

BlockDelegate::BlockDelegate(const BlockListModel& model, Picture picture, QObject* parent)
    : QStyledItemDelegate(parent), model_(model), picture_(std::move(picture)) {}

void BlockDelegate::setScheme(Scheme scheme) {
    scheme_ = scheme;
    pictures_.clear();
}

void BlockDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const {
    painter->save();
    if (!(option.state & QStyle::State_Enabled)) painter->setOpacity(0.5);
    const QColor pen = paintRowGround(*painter, option, scheme_);
    const bool onAccent = pen == color(Token::OnAccent, scheme_);
    const QColor second = onAccent ? pen : color(Token::Text2, scheme_);
    const BlockRow& row = model_.row(index.row());

    const qreal ratio = painter->device()->devicePixelRatioF();
    if (ratio != ratio_) pictures_.clear();
    ratio_ = ratio;
    auto picture = pictures_.constFind(row.block);
    if (picture == pictures_.constEnd()) {
        picture =
            pictures_.insert(row.block, picture_ ? picture_(row.block, kPicture - QSize(2, 2)) : QPixmap());
    }
    const QRect box(option.rect.x() + 8, option.rect.center().y() - kPicture.height() / 2 + 1,
                    kPicture.width(), kPicture.height());
    painter->fillRect(box, color(Token::Canvas, scheme_));
    if (!picture->isNull()) painter->drawPixmap(box.topLeft() + QPoint(1, 1), *picture);
    painter->setPen(color(Token::Hairline, scheme_));
    painter->drawRect(box.adjusted(0, 0, -1, -1));

    painter->setFont(fixedFont(option.font));
    painter->setPen(pen);
    const QString count = QString::number(row.references);
    const int countWidth = painter->fontMetrics().horizontalAdvance(count);
    const QRect right(option.rect.right() - 12 - countWidth, option.rect.y(), countWidth,
                      option.rect.height());
    painter->drawText(right, Qt::AlignVCenter | Qt::AlignRight, count);

    const QRect text(box.right() + 13, option.rect.y() + 4, right.left() - box.right() - 21,
                     option.rect.height() - 8);
    painter->setFont(option.font);
    const QString name = qt_face::toShown(row.name);
    const Qt::Alignment place = row.tags.empty() ? Qt::AlignVCenter : Qt::AlignTop;
    painter->drawText(text, static_cast<int>(place | Qt::AlignLeft),
                      painter->fontMetrics().elidedText(name, Qt::ElideRight, text.width()));
    painter->setFont(smallFont(option.font));
    painter->setPen(second);
    painter->drawText(text, Qt::AlignBottom | Qt::AlignLeft,
                      painter->fontMetrics().elidedText(joined(row.tags), Qt::ElideRight, text.width()));
    painter->restore();
}

QSize BlockDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
    return {200, qMax(kRowHeight, qRound(QFontMetrics(option.font).lineSpacing() * 2.45))};
}

QColor paintRowGround(QPainter& painter, const QStyleOptionViewItem& option, Scheme scheme) {
    const bool chosen = option.state & QStyle::State_Selected;
    const bool focused = option.state & QStyle::State_HasFocus;
    if (chosen) {
        painter.fillRect(option.rect, color(Token::AccentQuiet, scheme));
        painter.fillRect(QRect(option.rect.x(), option.rect.y(), 2, option.rect.height()),
                         color(Token::Accent, scheme));
    } else if (option.state & QStyle::State_MouseOver) {
        painter.fillRect(option.rect, color(Token::Raised, scheme));
    }
    if (focused) {
        painter.setPen(QPen(color(Token::Accent, scheme), 2));
        painter.drawRect(option.rect.adjusted(1, 1, -1, -1));
    }
    return color(Token::Text, scheme);
}

}  // namespace window
