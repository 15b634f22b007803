#include "desk/window/parts.h"

#include "desk/window/icons.h"
#include "faces/qt/qt_text.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QTimer>

namespace window {

Veil::Veil(QWidget* covered) : QWidget(covered), covered_(covered) {
    covered_->installEventFilter(this);
    hide();
}

void Veil::setOn(bool on) {
    setGeometry(covered_->rect());
    raise();
    setVisible(on);
}

bool Veil::eventFilter(QObject* watched, QEvent* event) {
    if (watched == covered_ && event->type() == QEvent::Resize) setGeometry(covered_->rect());
    return false;
}

void Veil::paintEvent(QPaintEvent*) {
    QColor half = palette().color(QPalette::Window);
    half.setAlphaF(0.5F);
    QPainter(this).fillRect(rect(), half);
}

EdgeTab::EdgeTab(QWidget* parent) : QWidget(parent) {
    setFixedWidth(24);
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
    setAttribute(Qt::WA_Hover);
}

void EdgeTab::setText(const QString& text) {
    text_ = text;
    setAccessibleName(text);
    setToolTip(text);
    update();
}

void EdgeTab::setUnfolded(bool unfolded) {
    unfolded_ = unfolded;
    update();
}

void EdgeTab::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Scheme scheme = schemeOf(palette());
    painter.fillRect(rect(), color(unfolded_ || underMouse() ? Token::AccentQuiet : Token::Raised, scheme));
    if (hasFocus()) {
        painter.setPen(QPen(color(Token::Accent, scheme), 2));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
    painter.setPen(color(Token::Text, scheme));
    painter.translate(width(), 0);
    painter.rotate(90);
    painter.drawText(QRect(12, 0, height() - 12, width()), Qt::AlignVCenter | Qt::AlignLeft, text_);
}

void EdgeTab::mousePressEvent(QMouseEvent*) { emit clicked(); }

void EdgeTab::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space || event->key() == Qt::Key_Return) {
        emit clicked();
    } else {
        QWidget::keyPressEvent(event);
    }
}

BusyBar::BusyBar(QWidget* parent) : QWidget(parent), timer_(new QTimer(this)) {
    setFixedHeight(2);
    timer_->setInterval(33);
    connect(timer_, &QTimer::timeout, this, qOverload<>(&BusyBar::update));
    clock_.start();
}

void BusyBar::setBusy(bool busy, double share) {
    busy_ = busy;
    share_ = share;
    if (busy && !timer_->isActive()) timer_->start();
    if (!busy) timer_->stop();
    update();
}

void BusyBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Scheme scheme = schemeOf(palette());
    painter.fillRect(rect(), color(Token::Raised, scheme));
    if (!busy_) return;
    const QColor accent = color(Token::Accent, scheme);
    if (share_ >= 0) {
        painter.fillRect(QRectF(0, 0, width() * share_, height()), accent);
    } else {
        constexpr int kRound = 1600;  // ms
        const double phase = static_cast<double>(clock_.elapsed() % kRound) / kRound;
        painter.fillRect(QRectF(width() * (phase * 1.3 - 0.3), 0, width() * 0.3, height()), accent);
    }
}

NoticeBar::NoticeBar(QWidget* parent)
    : QWidget(parent), sign_(new QLabel(this)), text_(new QLabel(this)), answers_(new QHBoxLayout) {
    setObjectName("noticeBar");
    setAttribute(Qt::WA_StyledBackground);
    text_->setTextFormat(Qt::PlainText);
    text_->setWordWrap(true);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(12, 5, 12, 5);
    row->setSpacing(10);
    row->addWidget(sign_);
    row->addWidget(text_, 1);
    row->addLayout(answers_);
    hide();
}

void NoticeBar::tell(const QString& text, const QStringList& answers) {
    const Scheme scheme = schemeOf(palette());
    sign_->setPixmap(iconPixmap("warning", 16, devicePixelRatioF(), color(Token::Warn, scheme), scheme));
    text_->setText(qt_face::toShown(text));
    while (QLayoutItem* item = answers_->takeAt(0)) {
        if (item->widget() != nullptr) {
            item->widget()->hide();
            item->widget()->deleteLater();
        }
        delete item;
    }
    for (int i = 0; i < answers.size(); ++i) {
        auto* button = new QPushButton(answers[i], this);
        connect(button, &QPushButton::clicked, this, [this, i] {
            hide();
            emit answered(i);
        });
        answers_->addWidget(button);
    }
    show();
}

QString NoticeBar::text() const { return text_->text(); }

}  // namespace window
