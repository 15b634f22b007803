#include "desk/window/list_panel.h"

#include "desk/window/panel.h"

#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QToolButton>
#include <QVBoxLayout>

namespace window {

ListPanel::ListPanel(QWidget* parent)
    : QWidget(parent),
      column_(new QVBoxLayout(this)),
      head_(new PanelHead(this)),
      search_(new QLineEdit(this)),
      list_(new QListView(this)),
      empty_(addNote()) {
    search_->setFixedHeight(26);
    search_->setClearButtonEnabled(true);
    list_->setUniformItemSizes(true);
    list_->setMouseTracking(true);
    list_->setContextMenuPolicy(Qt::CustomContextMenu);
    list_->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    empty_->setAlignment(Qt::AlignTop);
    setFocusProxy(list_);
}

QLabel* ListPanel::addNote() {
    auto* label = new QLabel(this);
    label->setObjectName("secondText");
    label->setContentsMargins(12, 6, 12, 6);
    return label;
}

void ListPanel::build(QAbstractItemModel* model, QAbstractItemDelegate* delegate, QToolButton* more,
                      int belowSearch) {
    list_->setModel(model);
    list_->setItemDelegate(delegate);
    auto* searchRow = new QHBoxLayout;
    searchRow->setContentsMargins(8, 0, 8, belowSearch);
    searchRow->addWidget(search_);
    column_->setContentsMargins(0, 0, 0, 0);
    column_->setSpacing(0);
    column_->addWidget(head_);
    column_->addLayout(searchRow);
    column_->addWidget(list_, 1);
    column_->addWidget(empty_, 1);

    connect(search_, &QLineEdit::textChanged, this, [this] { filter(); });
    connect(list_, &QListView::customContextMenuRequested, this,
            [this](const QPoint& place) { openMenu(place); });
    connect(more, &QToolButton::clicked, this,
            [this, more] { openMenu(more->mapTo(list_, QPoint(0, more->height()))); });
}

void ListPanel::showCount(std::size_t count, bool hasDrawing, const QString& why) {
    head_->setCount(hasDrawing ? static_cast<int>(count) : -1);
    empty_->setText(why);
    empty_->setVisible(count == 0);
    list_->setVisible(count != 0);
}

void ListPanel::nameSearch(const QString& name) {
    search_->setPlaceholderText(name);
    search_->setAccessibleName(name);
}

}  // namespace window
