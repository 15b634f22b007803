#include "desk/painter/picture_file.h"

#include "basic/error.h"
#include "desk/painter/qt_canvas.h"
#include "desk/picture/renderer.h"

#include <QBuffer>
#include <QImage>
#include <QPageSize>
#include <QPdfWriter>
#include <QSaveFile>
#include <QSvgGenerator>
#include <algorithm>

namespace painter {

namespace {

constexpr double kLongSide = 420;   // mm, that of an A3 sheet
constexpr double kThinLine = 0.18;  // mm, on paper
const QColor kDarkGround(0x0F, 0x13, 0x16);

/// Draws the whole picture in a frame of device units.
void paint(picture::Picture& picture, drawing::BlockId space, QPainter& painter, const picture::Frame& frame,
           const Inks& inks, const QtCanvas::Style& style, double pixelsPerMillimetre,
           const PictureFileOptions& options) {
    const geometry::Box box = options.area.value_or(picture.extents(space));
    const double margin = options.margin * std::min(frame.width(), frame.height());
    const picture::Projection projection = fitting(box, frame, margin);
    picture::RenderOptions render;
    render.frame = frame;
    if (options.weights) render.pixelsPerMillimetre = pixelsPerMillimetre;
    Glyphs glyphs;
    QtCanvas canvas(painter, inks, glyphs, style);
    picture::Renderer(picture, canvas, render).draw(space, projection);
}

QByteArray pngOf(picture::Picture& picture, drawing::BlockId space, const PictureFileOptions& options,
                 const Inks& inks) {
    QImage image(options.size, QImage::Format_RGB32);
    image.fill(inks.ground());
    QPainter painter(&image);
    const double perMillimetre = std::max(options.size.width(), options.size.height()) / kLongSide;
    paint(picture, space, painter,
          {0, 0, static_cast<double>(image.width()), static_cast<double>(image.height())}, inks, {},
          perMillimetre, options);
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

/// The sheet of SVG and PDF in millimetres.
QSizeF sheetOf(const PictureFileOptions& options) {
    return QSizeF(options.size).scaled(kLongSide, kLongSide, Qt::KeepAspectRatio);
}

/// The common part of SVG and PDF: `perMillimetre` device units a millimetre.
void paintSheet(picture::Picture& picture, drawing::BlockId space, QPaintDevice& device, double perMillimetre,
                const PictureFileOptions& options, const Inks& inks) {
    QPainter painter(&device);
    const QSizeF size = sheetOf(options) * perMillimetre;
    if (options.dark) painter.fillRect(QRectF({0, 0}, size), inks.ground());
    QtCanvas::Style style;
    style.hairline = kThinLine * perMillimetre;
    style.cosmetic = false;
    paint(picture, space, painter, {0, 0, size.width(), size.height()}, inks, style, perMillimetre, options);
}

QByteArray svgOf(picture::Picture& picture, drawing::BlockId space, const PictureFileOptions& options,
                 const Inks& inks) {
    constexpr double kPerMillimetre = 10;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QSvgGenerator svg;
    svg.setOutputDevice(&buffer);
    svg.setResolution(254);  // so that a millimetre has ten units
    const QSizeF size = sheetOf(options) * kPerMillimetre;
    svg.setSize(size.toSize());
    svg.setViewBox(QRectF({0, 0}, size));
    svg.setTitle(QString::fromStdString(picture.drawing().path()).section('/', -1));
    paintSheet(picture, space, svg, kPerMillimetre, options, inks);
    return bytes;
}

QByteArray pdfOf(picture::Picture& picture, drawing::BlockId space, const PictureFileOptions& options,
                 const Inks& inks) {
    constexpr int kDotsPerInch = 2540;  // a hundred units a millimetre
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter pdf(&buffer);
    pdf.setResolution(kDotsPerInch);
    pdf.setPageSize(QPageSize(sheetOf(options), QPageSize::Millimeter));
    pdf.setPageMargins({0, 0, 0, 0});
    pdf.setCreator("Vorlane");
    paintSheet(picture, space, pdf, 100, options, inks);
    return bytes;
}

}  // namespace

picture::Projection fitting(const geometry::Box& box, const picture::Frame& frame, double margin) {
    const bool empty = box.empty();
    const double width = empty ? 0 : box.high.x - box.low.x;
    const double height = empty ? 0 : box.high.y - box.low.y;
    const geometry::Point3 middle = empty ? geometry::Point3{} : (box.low + box.high) / 2;
    const double roomX = std::max(frame.width() - 2 * margin, 1.0);
    const double roomY = std::max(frame.height() - 2 * margin, 1.0);
    double scale = std::min(roomX / std::max(width, 1e-9), roomY / std::max(height, 1e-9));
    if (!(width > 0) && !(height > 0)) scale = std::min(roomX, roomY);
    picture::Projection projection;
    projection.toX = {scale, 0, 0};
    projection.toY = {0, -scale, 0};
    projection.origin = {(frame.left + frame.right) / 2 - middle.x * scale,
                         (frame.top + frame.bottom) / 2 + middle.y * scale};
    return projection;
}

void writePicture(picture::Picture& picture, drawing::BlockId space, const QString& path,
                  const PictureFileOptions& options) {
    const Inks inks(options.dark ? kDarkGround : QColor(Qt::white),
                    options.screenColors ? Inks::Use::Screen : Inks::Use::File);
    QByteArray bytes;
    if (path.endsWith(".png", Qt::CaseInsensitive)) {
        bytes = pngOf(picture, space, options, inks);
    } else if (path.endsWith(".svg", Qt::CaseInsensitive)) {
        bytes = svgOf(picture, space, options, inks);
    } else if (path.endsWith(".pdf", Qt::CaseInsensitive)) {
        bytes = pdfOf(picture, space, options, inks);
    } else {
        throw basic::Error(basic::kInvalidCall,
                           path.toStdString() + ": a picture's name ends in .png, .svg or .pdf");
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
        throw basic::Error(basic::kPathFileAccess,
                           path.toStdString() + ": " + file.errorString().toStdString());
    }
}

}  // namespace painter
