#include "desk/window/color_choice.h"

#include "desk/drawing/entity_data.h"
#include "desk/picture/color.h"

#include <QCoreApplication>
#include <QDialog>
#include <QGridLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>
#include <functional>

namespace window {

namespace {

constexpr int kPaletteColumns = 24;
constexpr int kCell = 16;

QString text(const char* english) { return QCoreApplication::translate("window", english); }

/// The palette's 240 shades, 10 to 249, a tone a column; below them the named ones and the greys.
class Palette : public QWidget {
  public:
    Palette(int current, Scheme scheme, std::function<void(int)> chosen)
        : current_(current), scheme_(scheme), chosen_(std::move(chosen)) {
        setFixedSize(kPaletteColumns * kCell + 1, 12 * kCell + 9);
        setFocusPolicy(Qt::StrongFocus);
        setMouseTracking(true);
        setAccessibleName(text("Palette of 255 colours"));
    }
    void setCurrent(int current) {
        current_ = current;
        update();
    }

  private:
    static QRect cellOf(int index) {
        if (index >= 10 && index <= 249) {
            const int tone = (index - 10) / 10;
            return {tone * kCell, (index % 10) * kCell, kCell, kCell};
        }
        const int column = index < 10 ? index - 1 : index - 250;
        const int row = index < 10 ? 10 : 11;
        return {column * kCell, row * kCell + 8, kCell, kCell};
    }
    static int indexAt(const QPoint& place) {
        for (int index = 1; index <= 255; ++index) {
            if (cellOf(index).contains(place)) return index;
        }
        return 0;
    }
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        for (int index = 1; index <= 255; ++index) {
            const QRect cell = cellOf(index).adjusted(1, 1, 0, 0);
            painter.fillRect(cell, swatchColor(index, scheme_));
            if (index != current_) continue;
            painter.setPen(QPen(color(Token::Accent, scheme_), 2));
            painter.drawRect(cell.adjusted(0, 0, -1, -1));
        }
    }
    void mousePressEvent(QMouseEvent* event) override {
        if (const int index = indexAt(event->pos())) chosen_(index);
    }
    void mouseMoveEvent(QMouseEvent* event) override {
        const int index = indexAt(event->pos());
        setToolTip(index == 0 ? QString() : colorName(index));
    }
    void keyPressEvent(QKeyEvent* event) override {
        int next = current_;
        if (event->key() == Qt::Key_Left) --next;
        if (event->key() == Qt::Key_Right) ++next;
        if (next == current_) return QWidget::keyPressEvent(event);
        chosen_(qBound(1, next, 255));
    }

    int current_;
    Scheme scheme_;
    std::function<void(int)> chosen_;
};

}  // namespace

QString colorName(int index) {
    static const char* const kNames[] = {"By block", "Red",  "Yellow",  "Green",
                                         "Cyan",     "Blue", "Magenta", "White or black"};
    if (index == drawing::kColorByLayer) return text("By layer");
    if (index >= 0 && index <= 7) return text(kNames[index]);
    return text("Colour %1").arg(index);
}

QColor swatchColor(int index, Scheme scheme) {
    const picture::Color made = picture::paletteColor(index);
    if (made.isForeground) return scheme == Scheme::Dark ? QColor(Qt::white) : color(Token::Hover, scheme);
    return {made.red, made.green, made.blue};
}

std::optional<int> chooseColor(QWidget* parent, int current, bool byLayer, Scheme scheme) {
    QDialog dialog(parent);
    dialog.setWindowTitle(text("Colour"));
    int chosen = current;
    auto* number = new QSpinBox;
    number->setRange(1, 255);
    number->setValue(qBound(1, current, 255));
    number->setAccessibleName(text("Number of the colour"));
    Palette* palette = nullptr;
    palette = new Palette(current, scheme, [number](int index) { number->setValue(index); });
    QObject::connect(number, &QSpinBox::valueChanged, &dialog, [&](int index) {
        chosen = index;
        palette->setCurrent(index);
    });
    auto* column = new QVBoxLayout(&dialog);
    column->setContentsMargins(16, 16, 16, 16);
    column->setSpacing(12);
    column->addWidget(palette);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(number);
    buttons->addStretch(1);
    const auto add = [&](const QString& caption, std::function<void()> act) {
        auto* button = new QPushButton(caption);
        QObject::connect(button, &QPushButton::clicked, &dialog, std::move(act));
        buttons->addWidget(button);
        return button;
    };
    const auto take = [&](int index) {
        chosen = index;
        dialog.accept();
    };
    if (byLayer) {
        add(colorName(drawing::kColorByLayer), [&] { take(drawing::kColorByLayer); });
        add(colorName(drawing::kColorByBlock), [&] { take(drawing::kColorByBlock); });
    }
    add(text("OK"), [&] { dialog.accept(); })->setDefault(true);
    add(text("Cancel"), [&] { dialog.reject(); });
    column->addLayout(buttons);
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return chosen;
}

}  // namespace window
