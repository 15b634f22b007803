#include "desk/window/panel.h"

#include "desk/window/icons.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

namespace window {

PanelHead::PanelHead(QWidget* parent)
    : QWidget(parent), row_(new QHBoxLayout(this)), title_(new QLabel(this)), count_(new QLabel(this)) {
    setFixedHeight(30);
    row_->setContentsMargins(12, 0, 6, 0);
    row_->setSpacing(4);
    QFont bold = font();
    bold.setWeight(QFont::DemiBold);
    title_->setFont(bold);
    count_->setObjectName("secondText");
    count_->setFont(smallFont(font()));
    row_->addWidget(title_);
    row_->addSpacing(4);
    row_->addWidget(count_);
    row_->addStretch(1);
}

void PanelHead::setTitle(const QString& title) { title_->setText(title); }
void PanelHead::setCount(int count) { count_->setText(count < 0 ? QString() : QString::number(count)); }

QToolButton* PanelHead::addTool(const QString& name) {
    auto* button = new QToolButton(this);
    button->setIcon(icon(name));
    button->setIconSize({16, 16});
    button->setFixedSize(26, 24);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    row_->addWidget(button);
    return button;
}

QFont smallFont(const QFont& font) {
    QFont small = font;
    if (font.pixelSize() > 0) {
        small.setPixelSize(qRound(font.pixelSize() * 0.885));
    } else {
        small.setPointSizeF(font.pointSizeF() * 0.885);
    }
    return small;
}

QFont fixedFont(const QFont& font) {
    QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    if (font.pixelSize() > 0) {
        fixed.setPixelSize(font.pixelSize());
    } else {
        fixed.setPointSizeF(font.pointSizeF());
    }
    return fixed;
}

void setTip(QToolButton* button, const QString& tip) {
    button->setToolTip(tip);
    button->setAccessibleName(tip);
}

}  // namespace window
