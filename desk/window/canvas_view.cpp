#include "desk/window/canvas_view.h"

#include <algorithm>
#include <cmath>

namespace window {

using picture::Point2;

void CanvasView::resize(double width, double height) {
    width_ = std::max(width, 1.0);
    height_ = std::max(height, 1.0);
}

CanvasView::Look CanvasView::limited(Look look) {
    // Beyond these a step of the wheel no longer moves the numbers of a double.
    look.scale = std::clamp(look.scale, 1e-9, 1e9);
    return look;
}

picture::Projection CanvasView::projection(const Look& look) const {
    picture::Projection result;
    result.toX = {look.scale, 0, 0};
    result.toY = {0, -look.scale, 0};
    result.origin = {width_ / 2 - look.center.x * look.scale, height_ / 2 + look.center.y * look.scale};
    return result;
}

void CanvasView::zoomAt(const Point2& at, double factor) {
    const geometry::Point3 before = projection().unproject(at);
    look_.scale *= factor;
    look_ = limited(look_);
    const geometry::Point3 after = projection().unproject(at);
    look_.center = look_.center + (before - after);
}

void CanvasView::pan(double dx, double dy) {
    look_.center = look_.center - geometry::Vector3{dx / look_.scale, -dy / look_.scale, 0};
}

CanvasView::Look CanvasView::fitting(const geometry::Box& box, double margin) const {
    if (box.empty()) return limited({{}, std::min(width_, height_) * (1 - 2 * margin)});
    const double roomX = width_ * (1 - 2 * margin);
    const double roomY = height_ * (1 - 2 * margin);
    const double x = box.high.x - box.low.x;
    const double y = box.high.y - box.low.y;
    Look look;
    look.center = {(box.low.x + box.high.x) / 2, (box.low.y + box.high.y) / 2, 0};
    if (x > 0 || y > 0) {
        look.scale = std::min(x > 0 ? roomX / x : 1e300, y > 0 ? roomY / y : 1e300);
    } else {
        look.scale = look_.scale;
    }
    return limited(look);
}

geometry::Box CanvasView::boxBetween(const Point2& a, const Point2& b) const {
    geometry::Box box;
    box.add(projection().unproject(a));
    box.add(projection().unproject(b));
    return box;
}

CanvasView::Look CanvasView::between(const Look& from, const Look& to, double t) {
    if (t >= 1) return to;
    Look look;
    look.scale = from.scale * std::pow(to.scale / from.scale, t);
    // The centre goes with the size of what is seen, or a glide would seem to rush at its end.
    const double sizeFrom = 1 / from.scale;
    const double sizeTo = 1 / to.scale;
    const double size = 1 / look.scale;
    const double share =
        std::abs(sizeTo - sizeFrom) > 1e-9 * sizeFrom ? (size - sizeFrom) / (sizeTo - sizeFrom) : t;
    look.center = lerp(from.center, to.center, share);
    return look;
}

void CanvasView::remember() {
    constexpr std::size_t kMost = 100;
    if (!past_.empty() && past_.back() == look_) return;
    if (past_.size() == kMost) past_.erase(past_.begin());
    past_.push_back(look_);
}

bool CanvasView::previous(Look& look) {
    while (!past_.empty()) {
        look = past_.back();
        past_.pop_back();
        if (!(look == look_)) return true;
    }
    return false;
}

}  // namespace window
