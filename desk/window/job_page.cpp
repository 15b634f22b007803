#include "desk/window/job_page.h"

#include "desk/window/panel.h"
#include "faces/qt/qt_text.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

namespace window {

JobPage::JobPage(QWidget* parent)
    : QWidget(parent),
      head_(new PanelHead(this)),
      fromPicture_(new QLabel(this)),
      toPicture_(new QLabel(this)),
      from_(new QLabel(this)),
      to_(new QLabel(this)),
      fromCount_(new QLabel(this)),
      toCount_(new QLabel(this)),
      arrow_(new QLabel(QString::fromUtf8("↓"), this)),
      second_(new QWidget(this)),
      body_(new QWidget(this)),
      rows_(new QVBoxLayout(body_)) {
    head_->setCount(-1);
    auto* outer = new QVBoxLayout(this);
    auto* area = new QScrollArea(this);
    auto* inside = new QWidget;
    auto* column = new QVBoxLayout(inside);
    auto* secondColumn = new QVBoxLayout(second_);
    for (QVBoxLayout* each : {outer, column, secondColumn}) {
        each->setContentsMargins(0, 0, 0, 0);
        each->setSpacing(0);
    }
    outer->addWidget(head_);
    outer->addWidget(area, 1);
    area->setWidget(inside);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setFocusPolicy(Qt::NoFocus);
    const auto add = [&](QVBoxLayout* into, QLabel* picture, QLabel* name, QLabel* count) {
        picture->setObjectName("blockPicture");
        picture->setFixedHeight(pictureBox().height() + 2);
        picture->setAlignment(Qt::AlignCenter);
        QFont bold = font();
        bold.setWeight(QFont::DemiBold);
        name->setFont(bold);
        name->setTextFormat(Qt::PlainText);
        count->setObjectName("secondText");
        count->setFont(fixedFont(smallFont(font())));
        auto* pictureRow = new QHBoxLayout;
        pictureRow->setContentsMargins(12, 0, 12, 0);
        pictureRow->addWidget(picture);
        into->addLayout(pictureRow);
        auto* row = new QHBoxLayout;
        row->setContentsMargins(12, 6, 12, 4);
        row->addWidget(name, 1);
        row->addWidget(count);
        into->addLayout(row);
    };
    add(column, fromPicture_, from_, fromCount_);
    arrow_->setAlignment(Qt::AlignCenter);
    arrow_->setObjectName("secondText");
    secondColumn->addWidget(arrow_);
    add(secondColumn, toPicture_, to_, toCount_);
    column->addWidget(second_);
    rows_->setContentsMargins(0, 4, 0, 8);
    rows_->setSpacing(0);
    column->addWidget(body_);
    column->addStretch(1);
}

void JobPage::setScheme(Scheme) { update(); }

void JobPage::addRows(const QString& title, const std::vector<std::pair<QString, QString>>& rows, Rows kind) {
    if (rows.empty()) return;
    auto* head = new QLabel(title, body_);
    head->setObjectName("groupTitle");
    head->setContentsMargins(12, 8, 12, 4);
    rows_->addWidget(head);
    for (const auto& [name, value] : rows) {
        auto* row = new QHBoxLayout;
        row->setContentsMargins(14, 0, 12, 0);
        row->setSpacing(0);
        const auto label = [&](const QString& text, const char* style) {
            auto* made = new QLabel(qt_face::toShown(text), body_);
            made->setTextFormat(Qt::PlainText);
            if (style != nullptr) made->setObjectName(style);
            row->addWidget(made);
            return made;
        };
        const bool feeds = kind == Rows::Feeding;
        label(name, feeds ? nullptr : "secondText")->setFixedWidth(kind == Rows::Faults ? 44 : 96);
        if (feeds) label(QString::fromUtf8("→"), "secondText")->setFixedWidth(28);
        const bool dropped = feeds && value.isEmpty();
        QLabel* last = label(dropped ? tr("dropped") : value, kind == Rows::Faults ? "errorText"
                                                              : dropped            ? "warnText"
                                                                                   : nullptr);
        if (kind == Rows::Counts) last->setFont(fixedFont(font()));
        auto* line = new QWidget(body_);
        line->setLayout(row);
        if (kind == Rows::Faults) {
            last->setWordWrap(true);
            row->setStretchFactor(last, 1);
            row->setContentsMargins(14, 3, 12, 3);
        } else {
            row->addStretch(1);
            line->setFixedHeight(25);
        }
        rows_->addWidget(line);
    }
}

void JobPage::addNote(const QString& text) {
    auto* note = new QLabel(qt_face::toShown(text), body_);
    note->setObjectName("secondText");
    note->setFont(smallFont(font()));
    note->setWordWrap(true);
    note->setContentsMargins(14, 8, 12, 0);
    rows_->addWidget(note);
}

void JobPage::clearRows() {
    while (QLayoutItem* item = rows_->takeAt(0)) {
        if (item->widget() != nullptr) {
            item->widget()->hide();  // at once: in a dialog's own loop the deletion waits for its end
            item->widget()->deleteLater();
        }
        delete item;
    }
}

void JobPage::show(const ReplacementView& view) {
    head_->setTitle(tr("Replacement"));
    second_->show();
    fromPicture_->setPixmap(view.fromPicture);
    toPicture_->setPixmap(view.toPicture);
    from_->setText(view.from.isEmpty() ? QString::fromUtf8("—") : qt_face::toShown(view.from));
    to_->setText(view.to.isEmpty() ? QString::fromUtf8("—") : qt_face::toShown(view.to));
    fromCount_->setText(tr("%n references", nullptr, static_cast<int>(view.fromReferences)));
    toCount_->setText(view.to.isEmpty() ? QString()
                                        : tr("%n references", nullptr, static_cast<int>(view.toReferences)));
    clearRows();
    addRows(tr("Attribute values"), view.values, Rows::Feeding);
    addRows(tr("References"), view.counts, Rows::Counts);
    addNote(view.note);
}

void JobPage::show(const InsertionView& view) {
    head_->setTitle(tr("Insertion"));
    second_->hide();
    fromPicture_->setPixmap(view.picture);
    from_->setText(view.block.isEmpty() ? QString::fromUtf8("—") : qt_face::toShown(view.block));
    fromCount_->clear();
    clearRows();
    addRows(tr("Rows"), view.counts, Rows::Counts);
    addRows(tr("Failed rows"), view.faults, Rows::Faults);
    if (!view.note.isEmpty()) addNote(view.note);
}

}  // namespace window
