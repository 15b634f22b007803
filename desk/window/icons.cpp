#include "desk/window/icons.h"

#include "desk/shell/surroundings.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace window {

namespace {

// The colours that the files are drawn in.
constexpr const char* kNeutral = "#1A2126";
constexpr const char* kOrange = "#A85400";
constexpr double kDisabledShare = 0.38;

QByteArray source(const QString& name) {
    const QString folder = QString::fromStdString((shell::resourceFolder() / "icons/window").string());
    QFile file(folder + "/" + name + ".svg");
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class ThemedIcon : public QIconEngine {
  public:
    explicit ThemedIcon(QString name) : name_(std::move(name)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        const QPalette palette = QApplication::palette();
        const int size = qMin(rect.width(), rect.height());
        const qreal ratio = painter->device()->devicePixelRatioF();
        const QPixmap picture = iconPixmap(
            name_, size, ratio, palette.color(QPalette::Active, QPalette::WindowText), schemeOf(palette));
        const qreal opacity = painter->opacity();
        if (mode == QIcon::Disabled) painter->setOpacity(opacity * kDisabledShare);
        painter->drawPixmap(rect.x() + (rect.width() - size) / 2, rect.y() + (rect.height() - size) / 2,
                            picture);
        painter->setOpacity(opacity);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return scaledPixmap(size, mode, state, 1);
    }

    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return picture;
    }

    QIconEngine* clone() const override { return new ThemedIcon(name_); }

  private:
    QString name_;
};

}  // namespace

QIcon icon(const QString& name) { return QIcon(new ThemedIcon(name)); }

QPixmap iconPixmap(const QString& name, int size, qreal ratio, const QColor& pen, Scheme scheme) {
    const QString key = QString("vorlane %1 %2 %3 %4 %5")
                            .arg(name, pen.name())
                            .arg(size)
                            .arg(ratio)
                            .arg(static_cast<int>(scheme));
    QPixmap picture;
    if (QPixmapCache::find(key, &picture)) return picture;
    QByteArray drawing = source(name);
    drawing.replace(kNeutral, pen.name().toLatin1());
    drawing.replace(kOrange, color(Token::Preview, scheme).name().toLatin1());
    picture = QPixmap(qRound(size * ratio), qRound(size * ratio));
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    QSvgRenderer(drawing).render(&painter, QRectF(0, 0, size, size));
    painter.end();
    QPixmapCache::insert(key, picture);
    return picture;
}

}  // namespace window
