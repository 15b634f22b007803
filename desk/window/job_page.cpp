#include "desk/window/job_page.h"

#include "desk/window/panel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace window {

ReplacementPage::ReplacementPage(QWidget* parent)
    : QWidget(parent),
      head_(new PanelHead(this)),
      fromPicture_(new QLabel(this)),
      toPicture_(new QLabel(this)),
      from_(new QLabel(this)),
      to_(new QLabel(this)),
      fromCount_(new QLabel(this)),
      toCount_(new QLabel(this)),
      arrow_(new QLabel(QString::fromUtf8("↓"), this)),
      body_(new QWidget(this)),
      rows_(new QVBoxLayout(body_)) {
    head_->setCount(-1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(head_);
    const auto add = [&](QLabel* picture, QLabel* name, QLabel* count) {
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
        column->addLayout(pictureRow);
        auto* row = new QHBoxLayout;
        row->setContentsMargins(12, 6, 12, 4);
        row->addWidget(name, 1);
        row->addWidget(count);
        column->addLayout(row);
    };
    add(fromPicture_, from_, fromCount_);
    arrow_->setAlignment(Qt::AlignCenter);
    arrow_->setObjectName("secondText");
    column->addWidget(arrow_);
    add(toPicture_, to_, toCount_);
    rows_->setContentsMargins(0, 4, 0, 8);
    rows_->setSpacing(0);
    column->addWidget(body_);
    column->addStretch(1);
}

void ReplacementPage::setScheme(Scheme) { update(); }

void ReplacementPage::addRows(QVBoxLayout* into, const QString& title,
                              const std::vector<std::pair<QString, QString>>& rows, bool arrows) {
    if (rows.empty()) return;
    auto* head = new QLabel(title, body_);
    head->setObjectName("groupTitle");
    head->setContentsMargins(12, 8, 12, 4);
    into->addWidget(head);
    for (const auto& [name, value] : rows) {
        auto* row = new QHBoxLayout;
        row->setContentsMargins(14, 0, 12, 0);
        row->setSpacing(0);
        const auto label = [&](const QString& text, const char* style) {
            auto* made = new QLabel(text, body_);
            made->setTextFormat(Qt::PlainText);
            if (style != nullptr) made->setObjectName(style);
            row->addWidget(made);
            return made;
        };
        label(name, arrows ? nullptr : "secondText")->setFixedWidth(96);
        if (arrows) label(QString::fromUtf8("→"), "secondText")->setFixedWidth(28);
        const bool dropped = arrows && value.isEmpty();
        QLabel* last = label(dropped ? tr("dropped") : value, dropped ? "warnText" : nullptr);
        if (!arrows) last->setFont(fixedFont(font()));
        row->addStretch(1);
        auto* line = new QWidget(body_);
        line->setFixedHeight(25);
        line->setLayout(row);
        into->addWidget(line);
    }
}

void ReplacementPage::show(const ReplacementView& view) {
    head_->setTitle(tr("Replacement"));
    fromPicture_->setPixmap(view.fromPicture);
    toPicture_->setPixmap(view.toPicture);
    from_->setText(view.from.isEmpty() ? QString::fromUtf8("—") : view.from);
    to_->setText(view.to.isEmpty() ? QString::fromUtf8("—") : view.to);
    fromCount_->setText(tr("%1 references").arg(view.fromReferences));
    toCount_->setText(view.to.isEmpty() ? QString() : tr("%1 references").arg(view.toReferences));
    while (QLayoutItem* item = rows_->takeAt(0)) {
        if (item->widget() != nullptr) {
            item->widget()->hide();  // at once: in a dialog's own loop the deletion waits for its end
            item->widget()->deleteLater();
        }
        delete item;
    }
    addRows(rows_, tr("Attribute values"), view.values, true);
    addRows(rows_, tr("References"), view.counts, false);
    auto* note = new QLabel(view.note, body_);
    note->setObjectName("secondText");
    note->setFont(smallFont(font()));
    note->setWordWrap(true);
    note->setContentsMargins(14, 8, 12, 0);
    rows_->addWidget(note);
}

}  // namespace window
