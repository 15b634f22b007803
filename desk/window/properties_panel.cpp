#include "desk/window/properties_panel.h"

#include "desk/window/color_choice.h"
#include "desk/window/icons.h"
#include "desk/window/panel.h"
#include "desk/window/property_field.h"
#include "faces/qt/qt_text.h"

#include <QApplication>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

namespace window {

namespace {

constexpr int kLabelWidth = 90;
constexpr QSize kPicture{64, 54};
constexpr int kColorOfList = -2;  ///< the entry that opens the palette

QLabel* secondLabel(const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setObjectName("secondText");
    label->setTextFormat(Qt::PlainText);
    return label;
}

QIcon swatchIcon(int index, Scheme scheme) {
    QPixmap swatch(12, 12);
    swatch.fill(swatchColor(index, scheme));
    return swatch;
}

}  // namespace

PropertiesPanel::PropertiesPanel(Picture picture, Edit edit, QWidget* parent)
    : QWidget(parent),
      picture_(std::move(picture)),
      edit_(std::move(edit)),
      head_(new PanelHead(this)),
      area_(new QScrollArea(this)),
      body_(new QWidget),
      column_(new QVBoxLayout(body_)) {
    head_->setCount(-1);
    column_->setContentsMargins(0, 0, 0, 8);
    column_->setSpacing(0);
    area_->setWidget(body_);
    area_->setWidgetResizable(true);
    area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area_->setFocusPolicy(Qt::NoFocus);
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->setSpacing(0);
    outer->addWidget(head_);
    outer->addWidget(area_, 1);
    retranslate();
}

void PropertiesPanel::retranslate() {
    head_->setTitle(tr("Properties"));
    area_->setAccessibleName(tr("Properties"));
    rebuild();
}

void PropertiesPanel::setScheme(Scheme scheme) {
    scheme_ = scheme;
    rebuild();
}

void PropertiesPanel::show(const drawing::Drawing* drawing, const std::vector<drawing::EntityId>& entities) {
    drawing_ = drawing;
    entities_.clear();
    for (const drawing::EntityId id : entities) {
        if (drawing != nullptr && !drawing->isErased(id)) entities_.push_back(id);
    }
    rebuild();
}

void PropertiesPanel::clear() {
    const QWidget* focus = QApplication::focusWidget();
    focused_ = focus != nullptr && body_->isAncestorOf(focus) ? focus->accessibleName() : QString();
    while (QLayoutItem* item = column_->takeAt(0)) {
        if (item->widget() != nullptr) {
            item->widget()->hide();
            item->widget()->deleteLater();
        }
        delete item;
    }
}

void PropertiesPanel::rebuild() {
    const int scrolled = area_->verticalScrollBar() == nullptr ? 0 : area_->verticalScrollBar()->value();
    clear();
    if (drawing_ == nullptr || entities_.empty()) {
        QLabel* empty = secondLabel(tr("Nothing selected"), body_);
        empty->setContentsMargins(12, 6, 12, 6);
        column_->addWidget(empty);
        column_->addStretch(1);
        return;
    }
    addTitle(propertyTitle(*drawing_, entities_));
    for (const PropertyGroup& group : propertyGroups(*drawing_, entities_)) addGroup(group);
    column_->addStretch(1);
    if (!focused_.isEmpty()) {
        for (QWidget* field : body_->findChildren<QWidget*>()) {
            if (!field->isHidden() && field->accessibleName() == focused_)
                field->setFocus(Qt::OtherFocusReason);
        }
    }
    QTimer::singleShot(0, this, [this, scrolled] { area_->verticalScrollBar()->setValue(scrolled); });
}

void PropertiesPanel::addTitle(const PropertyTitle& title) {
    auto* top = new QWidget(body_);
    auto* row = new QHBoxLayout(top);
    row->setContentsMargins(12, 2, 12, 10);
    row->setSpacing(12);
    if (title.block != drawing::kNoBlock && picture_) {
        auto* picture = new QLabel(top);
        picture->setObjectName("blockPicture");
        picture->setFixedSize(kPicture + QSize(10, 8));
        picture->setAlignment(Qt::AlignCenter);
        picture->setPixmap(picture_(title.block, kPicture));
        row->addWidget(picture);
    }
    auto* lines = new QVBoxLayout;
    lines->setSpacing(2);
    auto* name = new QLabel(title.name, top);
    QFont bold = name->font();
    bold.setWeight(QFont::DemiBold);
    name->setFont(bold);
    name->setTextFormat(Qt::PlainText);
    name->setWordWrap(true);
    lines->addStretch(1);
    lines->addWidget(name);
    if (!title.kind.isEmpty()) {
        QLabel* kind = secondLabel(title.kind, top);
        kind->setFont(smallFont(font()));
        lines->addWidget(kind);
    }
    if (!title.handle.isEmpty()) {
        QLabel* handle = secondLabel(title.handle, top);
        handle->setFont(smallFont(fixedFont(font())));
        handle->setTextInteractionFlags(Qt::TextSelectableByMouse);
        lines->addWidget(handle);
    }
    lines->addStretch(1);
    row->addLayout(lines, 1);
    column_->addWidget(top);
}

void PropertiesPanel::addGroup(const PropertyGroup& group) {
    const bool folded = group.folded ? unfolded_.count(group.title) == 0 : folded_.count(group.title) > 0;
    auto* head = new QPushButton(group.title, body_);
    head->setObjectName("groupHead");
    head->setIcon(icon(folded ? "chevron-right" : "chevron-down"));
    head->setIconSize({12, 12});
    head->setAccessibleName(group.title);
    head->setFocusPolicy(Qt::TabFocus);
    column_->addWidget(head);
    if (group.counted) {
        auto* row = new QHBoxLayout(head);
        row->setContentsMargins(0, 0, 12, 0);
        row->addStretch(1);
        row->addWidget(secondLabel(QString::number(group.rows.size()), head));
    }
    connect(head, &QPushButton::clicked, this, [this, title = group.title, atFirst = group.folded] {
        std::set<QString>& turned = atFirst ? unfolded_ : folded_;
        if (turned.erase(title) == 0) turned.insert(title);
        // The head that was clicked goes with the rebuild.
        QTimer::singleShot(0, this, &PropertiesPanel::rebuild);
    });
    if (folded) return;
    for (const PropertyRow& row : group.rows) column_->addWidget(addRow(row));
    auto* gap = new QWidget(body_);
    gap->setFixedHeight(6);
    column_->addWidget(gap);
}

QWidget* PropertiesPanel::addRow(const PropertyRow& row) {
    auto* line = new QWidget(body_);
    auto* layout = new QHBoxLayout(line);
    layout->setContentsMargins(14, 0, 8, 0);
    layout->setSpacing(0);
    QLabel* label = secondLabel(row.label, line);
    label->setFixedWidth(kLabelWidth);
    label->setToolTip(qt_face::plainTip(row.label));
    layout->addWidget(label);
    const QString shown = row.varies ? tr("varies") : row.value;
    QWidget* value = nullptr;
    if (row.edit == PropertyEdit::Text || row.edit == PropertyEdit::Number) {
        auto* field = new PropertyField(row.varies ? QString() : row.value, line);
        field->setPlaceholderText(row.varies ? tr("varies") : QString::fromUtf8("—"));
        connect(field, &PropertyField::taken, this, [this, row](const QString& text) { apply(row, text); });
        value = field;
    } else if (row.edit == PropertyEdit::None) {
        QLabel* text = new QLabel(shown, line);
        text->setContentsMargins(6, 0, 0, 0);
        text->setTextFormat(Qt::PlainText);
        text->setTextInteractionFlags(Qt::TextSelectableByMouse);
        value = text;
    } else {
        auto* choice = new QComboBox(line);
        choice->setObjectName("propertyChoice");
        choice->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        choice->setMinimumContentsLength(4);
        if (row.edit == PropertyEdit::Layer) {
            for (const drawing::Layer& layer : drawing_->layers().all()) {
                if (layer.record != drawing::kNoEntity && !drawing_->isErased(layer.record)) {
                    const QString name = QString::fromStdString(layer.name);
                    choice->addItem(qt_face::toShown(name), name);
                }
            }
            choice->model()->sort(0);
        } else if (row.edit == PropertyEdit::YesNo) {
            choice->addItem(tr("Yes"), "1");
            choice->addItem(tr("No"), "0");
        } else {
            for (const int index : {drawing::kColorByLayer, drawing::kColorByBlock, 1, 2, 3, 4, 5, 6, 7}) {
                choice->addItem(colorName(index), index);
                if (index != drawing::kColorByLayer && index != drawing::kColorByBlock) {
                    choice->setItemIcon(choice->count() - 1, swatchIcon(index, scheme_));
                }
            }
            if (!row.varies && choice->findText(row.value) < 0) choice->addItem(row.value, row.color);
            if (!row.varies) choice->setItemIcon(choice->findText(row.value), swatchIcon(row.color, scheme_));
            choice->addItem(tr("Other…"), kColorOfList);
        }
        choice->setPlaceholderText(shown);
        choice->setCurrentIndex(row.varies ? -1 : choice->findText(row.value, Qt::MatchFixedString));
        choice->setFocusPolicy(Qt::StrongFocus);
        connect(choice, &QComboBox::activated, this, [this, row, choice](int index) {
            QString chosen = choice->itemData(index).toString();
            if (row.edit == PropertyEdit::Color && chosen.toInt() == kColorOfList) {
                const auto other = chooseColor(this, row.color, true, scheme_);
                chosen = other ? QString::number(*other) : QString();
            }
            if (chosen.isEmpty()) return rebuild();
            apply(row, chosen);
        });
        value = choice;
    }
    if (row.isNumber) value->setFont(fixedFont(font()));
    value->setAccessibleName(row.label);
    if (row.varies) value->setProperty("varies", true);
    layout->addWidget(value, 1);
    line->setFixedHeight(26);
    return line;
}

void PropertiesPanel::apply(const PropertyRow& row, const QString& value) {
    const std::vector<drawing::EntityId> entities = entities_;
    // The row goes with the rebuild that the edit brings; so it is carried out when this event is over.
    QTimer::singleShot(0, this, [this, row, value, entities] {
        edit_(tr("Change of %1").arg(row.label), [row, value, entities](drawing::Drawing& drawing) {
            for (const drawing::EntityId id : entities) row.apply(drawing, id, value);
        });
        rebuild();
    });
}

void PropertiesPanel::focusFirst() {
    for (QWidget* field : body_->findChildren<QWidget*>()) {
        if (field->isVisible() && field->focusPolicy() == Qt::StrongFocus) {
            field->setFocus(Qt::ShortcutFocusReason);
            return;
        }
    }
    area_->setFocus(Qt::ShortcutFocusReason);
}

}  // namespace window
