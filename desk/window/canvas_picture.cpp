#include "desk/window/canvas_picture.h"

#include <utility>

namespace window {

namespace {

constexpr int kRest = 80;
constexpr int kPortion = 12;
/// A picture that took less is drawn within the step that needs it.
constexpr double kAtOnce = 25;

}  // namespace

/// A picture that is being drawn. The members go in the opposite order: canvas before painter before image.
struct CanvasPicture::Job {
    Job(picture::Picture& picture, drawing::BlockId space, const CanvasView& view, const painter::Inks& inks,
        painter::Glyphs& glyphs, const painter::QtCanvas::Style& style, const picture::RenderOptions& options)
        : look(view.look()),
          projection(view.projection()),
          image(static_cast<int>(view.width()), static_cast<int>(view.height()), QImage::Format_RGB32),
          painter(prepared(image, inks)),
          canvas(painter, inks, glyphs, style),
          renderer(picture, canvas, options) {
        renderer.start(space, projection);
    }

    static QImage* prepared(QImage& image, const painter::Inks& inks) {
        image.fill(inks.ground());
        return &image;
    }

    CanvasView::Look look;
    picture::Projection projection;
    QImage image;
    QPainter painter;
    painter::QtCanvas canvas;
    picture::Renderer renderer;
    double milliseconds = 0;
};

CanvasPicture::CanvasPicture(painter::Glyphs& glyphs, std::function<void()> changed)
    : glyphs_(glyphs), changed_(std::move(changed)) {
    rest_.setSingleShot(true);
    rest_.setInterval(kRest);
    portion_.setSingleShot(true);
    portion_.setInterval(0);
    connect(&rest_, &QTimer::timeout, this, [this] {
        start();
        schedule();
    });
    connect(&portion_, &QTimer::timeout, this, [this] { schedule(); });
}

CanvasPicture::~CanvasPicture() = default;

void CanvasPicture::setContent(picture::Picture* picture, drawing::BlockId space) {
    job_.reset();
    picture_ = picture;
    space_ = space;
    imageLook_.reset();
    image_ = {};
    lastMilliseconds_ = 0;
    rest_.start(0);
}

void CanvasPicture::setInks(const painter::Inks& inks) {
    job_.reset();
    inks_ = inks;
    contentChanged();
}

void CanvasPicture::setWeights(bool on) {
    weights_ = on;
    contentChanged();
}

void CanvasPicture::setPixelRatio(double ratio) {
    if (ratio == ratio_) return;
    ratio_ = ratio;
    contentChanged();
}

void CanvasPicture::contentChanged() {
    job_.reset();
    if (picture_ == nullptr) return;
    start();
    if (work(kPortion)) {
        changed_();
    } else {
        portion_.start();
    }
}

void CanvasPicture::setView(const CanvasView& view) {
    const bool sameSize = view.width() == view_.width() && view.height() == view_.height();
    const bool same = sameSize && view.look() == view_.look();
    view_ = view;
    if (picture_ == nullptr || (same && (imageLook_ == view.look() || job_))) return;
    job_.reset();
    portion_.stop();
    if (!imageLook_ || lastMilliseconds_ < kAtOnce) {
        start();
        if (!work(static_cast<int>(kAtOnce))) portion_.start();
    } else {
        rest_.start(kRest);
    }
    changed_();
}

void CanvasPicture::start() {
    if (picture_ == nullptr) return;
    picture::RenderOptions options;
    options.frame = view_.frame();
    // 96 pixels an inch, as desktops count
    if (weights_) options.pixelsPerMillimetre = 96 / 25.4 * ratio_;
    painter::QtCanvas::Style style;
    style.hairline = ratio_ < 1.5 ? 1 : 2;
    job_ = std::make_unique<Job>(*picture_, space_, view_, inks_, glyphs_, style, options);
}

bool CanvasPicture::work(int milliseconds) {
    if (!job_) return true;
    QElapsedTimer timer;
    timer.start();
    const auto isLate = [&] { return timer.elapsed() >= milliseconds; };
    const bool isComplete = job_->renderer.resume(isLate);
    job_->milliseconds += static_cast<double>(timer.nsecsElapsed()) / 1e6;
    if (!isComplete) return false;
    job_->canvas.flush();
    job_->painter.end();
    image_ = job_->image;
    imageLook_ = job_->look;
    lastMilliseconds_ = job_->milliseconds;
    job_.reset();
    return true;
}

void CanvasPicture::schedule() {
    if (work(kPortion)) {
        changed_();
    } else {
        portion_.start();
    }
}

void CanvasPicture::finish() {
    if (picture_ == nullptr) return;
    if (!job_ && !isFine()) start();
    while (!work(1000)) {
    }
}

void CanvasPicture::paint(QPainter& painter) const {
    const QRectF all(0, 0, view_.width(), view_.height());
    if (!imageLook_) {
        painter.fillRect(all, inks_.ground());
        if (job_) painter.drawImage(QPointF(0, 0), job_->image);
        return;
    }
    if (*imageLook_ == view_.look() && image_.size() == all.size().toSize()) {
        painter.drawImage(QPointF(0, 0), image_);
        return;
    }
    // The old picture moved to where its parts are now.
    painter.fillRect(all, inks_.ground());
    const double factor = view_.look().scale / imageLook_->scale;
    const picture::Point2 center = view_.projection().apply(imageLook_->center);
    const QSizeF size(image_.width() * factor, image_.height() * factor);
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
    painter.drawImage(QRectF(QPointF(center.x - size.width() / 2, center.y - size.height() / 2), size),
                      image_);
    painter.restore();
}

}  // namespace window
