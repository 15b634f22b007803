#include "desk/window/block_list_model.h"
#include "desk/window/color_choice.h"
#include "desk/window/icons.h"
#include "desk/window/layers_panel.h"
#include "desk/window/panel.h"
#include "faces/qt/qt_text.h"

#include <QPainter>

namespace window {

namespace {

constexpr int kLeft = 8;
constexpr int kColumn = 24;
constexpr int kIcon = 16;
constexpr int kSwatch = 11;
constexpr double kAsUsual = 0.25;

}  // namespace

void LayerListModel::setRows(std::vector<LayerRow> rows) {
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
}

int LayerListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant LayerListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const LayerRow& shown = row(index.row());
    const QString name = qt_face::toShown(shown.name);
    if (role == Qt::DisplayRole) return name;
    if (role != Qt::AccessibleTextRole) return {};
    QStringList states{name};
    if (shown.current) states.append(tr("current"));
    if (!shown.on) states.append(tr("off"));
    if (shown.frozen) states.append(tr("frozen"));
    if (shown.locked) states.append(tr("locked"));
    states.append(colorName(shown.color));
    states.append(tr("%n entities", nullptr, static_cast<int>(shown.entities)));
    return states.join(", ");
}

LayerDelegate::LayerDelegate(const LayerListModel& model, QObject* parent)
    : QStyledItemDelegate(parent), model_(model) {}

std::optional<LayerAct> LayerDelegate::actAt(int x) {
    const int column = (x - kLeft) / kColumn;
    if (x < kLeft || column > static_cast<int>(LayerAct::ChooseColor)) return std::nullopt;
    return static_cast<LayerAct>(column);
}

void LayerDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const {
    painter->save();
    const bool enabled = option.state & QStyle::State_Enabled;
    const double whole = enabled ? 1 : 0.5;
    painter->setOpacity(whole);
    const QColor pen = paintRowGround(*painter, option, scheme_);
    const LayerRow& row = model_.row(index.row());
    const qreal ratio = painter->device()->devicePixelRatioF();
    int x = option.rect.x() + kLeft;
    const int top = option.rect.y() + (option.rect.height() - kIcon) / 2;
    const auto sign = [&](const char* name, bool deviates, const QColor& ink, bool shown = true) {
        painter->setOpacity(whole * (deviates ? 1 : kAsUsual));
        if (shown) painter->drawPixmap(x, top, iconPixmap(name, kIcon, ratio, ink, scheme_));
        x += kColumn;
    };
    const QColor text2 = color(Token::Text2, scheme_);
    sign("tick", true, color(Token::Accent, scheme_), row.current);
    // A lamp that burns is as usual but not to be overlooked: it stands in second text, one that is out at 25
    // %.
    painter->setOpacity(whole * (row.on ? 1 : kAsUsual));
    painter->drawPixmap(x, top, iconPixmap("layer-on", kIcon, ratio, text2, scheme_));
    x += kColumn;
    sign("frozen", row.frozen, row.frozen ? color(Token::Accent, scheme_) : text2);
    sign(row.locked ? "lock" : "unlock", row.locked, row.locked ? color(Token::Warn, scheme_) : text2);
    painter->setOpacity(whole);
    const QRect swatch(x + (kColumn - kSwatch) / 2 - 4, option.rect.center().y() - kSwatch / 2, kSwatch,
                       kSwatch);
    painter->fillRect(swatch, swatchColor(row.color, scheme_));
    painter->setPen(color(Token::Border, scheme_));
    painter->drawRect(swatch.adjusted(0, 0, -1, -1));
    x += kColumn;

    painter->setFont(fixedFont(option.font));
    painter->setPen(text2);
    const QString count = QString::number(row.entities);
    const int countWidth = painter->fontMetrics().horizontalAdvance(count);
    const QRect right(option.rect.right() - 12 - countWidth, option.rect.y(), countWidth,
                      option.rect.height());
    painter->drawText(right, Qt::AlignVCenter | Qt::AlignRight, count);
    painter->setFont(option.font);
    painter->setPen(row.on && !row.frozen ? pen : text2);
    const QRect text(x - 2, option.rect.y(), right.left() - x - 4, option.rect.height());
    painter->drawText(
        text, Qt::AlignVCenter | Qt::AlignLeft,
        painter->fontMetrics().elidedText(qt_face::toShown(row.name), Qt::ElideRight, text.width()));
    painter->restore();
}

QSize LayerDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
    return {200, qMax(24, QFontMetrics(option.font).lineSpacing() + 6)};
}

}  // namespace window
