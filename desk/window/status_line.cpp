#include "desk/window/status_line.h"

#include "desk/window/panel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStyle>
#include <QTabBar>
#include <QToolButton>

namespace window {

namespace {

/// Beyond this the tabs scroll where the result needs the room.
constexpr int kRoomOfTabs = 280;

}  // namespace

StatusLine::StatusLine(QWidget* parent)
    : QWidget(parent),
      tabs_(new QTabBar(this)),
      result_(new QLabel(this)),
      linkRow_(new QHBoxLayout),
      cancel_(new QPushButton(this)),
      counts_(new QLabel(this)),
      cursor_(new QLabel(this)),
      snap_(addSwitch(&StatusLine::snapToggled)),
      ortho_(addSwitch(&StatusLine::orthoToggled)),
      weights_(addSwitch(&StatusLine::weightsToggled)) {
    setObjectName("statusLine");
    setAttribute(Qt::WA_StyledBackground);
    setFixedHeight(28);
    tabs_->setObjectName("spaceTabs");
    tabs_->setDrawBase(false);
    tabs_->setExpanding(false);
    tabs_->setUsesScrollButtons(true);
    tabs_->setFocusPolicy(Qt::TabFocus);
    result_->setTextFormat(Qt::PlainText);
    result_->setObjectName("resultText");
    result_->setMinimumWidth(40);  // where room is short, it is the text that is cut
    counts_->setObjectName("secondText");
    counts_->setTextFormat(Qt::RichText);
    cursor_->setFont(fixedFont(font()));
    cursor_->setMinimumWidth(cursor_->fontMetrics().horizontalAdvance("000000.0000, -000000.0000"));
    cursor_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    cancel_->setObjectName("link");
    cancel_->hide();

    const auto separator = [this] {
        auto* line = new QWidget(this);
        line->setObjectName("statusSeparator");
        line->setAttribute(Qt::WA_StyledBackground);
        line->setFixedSize(1, 16);
        return line;
    };
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 8, 0);
    row->setSpacing(0);
    row->addWidget(tabs_);
    row->addSpacing(8);
    row->addWidget(separator());
    row->addSpacing(12);
    row->addWidget(result_);
    linkRow_->setSpacing(2);
    row->addSpacing(8);
    row->addLayout(linkRow_);
    row->addWidget(cancel_);
    row->addSpacing(12);
    row->addStretch(1);
    row->addWidget(counts_);
    row->addSpacing(12);
    row->addWidget(separator());
    row->addSpacing(12);
    row->addWidget(cursor_);
    row->addSpacing(12);
    row->addWidget(separator());
    row->addSpacing(8);
    for (QToolButton* button : {snap_, ortho_, weights_}) row->addWidget(button);

    connect(tabs_, &QTabBar::currentChanged, this, &StatusLine::tabChosen);
    connect(cancel_, &QPushButton::clicked, this, &StatusLine::cancelAsked);
    retranslate();
}

QToolButton* StatusLine::addSwitch(void (StatusLine::*signal)(bool)) {
    auto* button = new QToolButton(this);
    button->setCheckable(true);
    button->setObjectName("switch");
    button->setFocusPolicy(Qt::TabFocus);
    connect(button, &QToolButton::toggled, this, signal);
    return button;
}

void StatusLine::setTabs(const QStringList& names, int current) {
    const QSignalBlocker quiet(tabs_);
    while (tabs_->count() > 0) tabs_->removeTab(0);
    for (const QString& name : names) tabs_->addTab(QString(name).replace("&", "&&"));
    tabs_->setCurrentIndex(current);
    tabs_->setMinimumWidth(qMin(tabs_->sizeHint().width(), kRoomOfTabs));
}

void StatusLine::showResult(const QString& text, Tone tone, const QStringList& links) {
    text_ = text;
    tone_ = tone;
    result_->setProperty("tone", tone == Tone::Done ? "done" : tone == Tone::Failed ? "failed" : "plain");
    result_->style()->unpolish(result_);
    result_->style()->polish(result_);
    result_->setText(tone == Tone::Done ? QString::fromUtf8("✓ ") + text : text);
    for (QPushButton* link : links_) {
        link->hide();  // at once: in a dialog's own loop the deletion waits for its end
        link->deleteLater();
    }
    links_.clear();
    for (int i = 0; i < links.size(); ++i) {
        auto* link = new QPushButton(links[i], this);
        link->setObjectName("link");
        link->setCursor(Qt::PointingHandCursor);
        connect(link, &QPushButton::clicked, this, [this, i] { emit linkClicked(i); });
        linkRow_->addWidget(link);
        links_.push_back(link);
    }
}

void StatusLine::showHint(const QString& text) {
    for (QPushButton* link : links_) link->setVisible(text.isEmpty());
    result_->setText(!text.isEmpty() ? text : tone_ == Tone::Done ? QString::fromUtf8("✓ ") + text_ : text_);
}

QObject* StatusLine::cancelButton() const { return cancel_; }

QString StatusLine::resultText() const { return text_; }

void StatusLine::showCounts(std::size_t notDrawn, std::size_t hidden) {
    notDrawn_ = notDrawn;
    hidden_ = hidden;
    const QString first = tr("Not drawn %1").arg(notDrawn);
    const QString warned =
        notDrawn == 0 ? first
                      : QString("<span style='color:%1'>%2</span>")
                            .arg(palette().color(QPalette::BrightText).name(), first.toHtmlEscaped());
    counts_->setText(warned + QString::fromUtf8(" &nbsp;·&nbsp; ") + tr("Hidden %1").arg(hidden));
    counts_->setToolTip(
        tr("Not drawn: entities of kinds that the picture lacks. Hidden: invisible, frozen or off."));
}

void StatusLine::showCursor(double x, double y) {
    cursor_->setText(QString::number(x, 'f', 4) + ", " + QString::number(y, 'f', 4));
}

void StatusLine::setSwitches(bool snap, bool ortho, bool weights) {
    const QSignalBlocker quiet[] = {QSignalBlocker(snap_), QSignalBlocker(ortho_), QSignalBlocker(weights_)};
    snap_->setChecked(snap);
    ortho_->setChecked(ortho);
    weights_->setChecked(weights);
}

void StatusLine::setBlocked(bool blocked) { tabs_->setEnabled(!blocked); }

void StatusLine::showWork(const QString& text, double share, bool canCancel) {
    result_->setText(share < 0 ? text : tr("%1, %2 %").arg(text).arg(qRound(share * 100)));
    for (QPushButton* link : links_) link->hide();
    cancel_->setVisible(canCancel);
}

void StatusLine::endWork() {
    cancel_->hide();
    showHint({});
}

void StatusLine::retranslate() {
    tabs_->setAccessibleName(tr("Model space and layouts"));
    snap_->setText(tr("Snap") + "  F3");
    ortho_->setText(tr("Ortho") + "  F8");
    weights_->setText(tr("Weights"));
    snap_->setToolTip(tr("Snap to ends, middles, centres (F3)"));
    ortho_->setToolTip(tr("Horizontal and vertical only (F8)"));
    weights_->setToolTip(tr("Show lineweights"));
    cancel_->setText(tr("Cancel"));
    showCounts(notDrawn_, hidden_);
}

}  // namespace window
