#pragma once

#include "desk/picture/projection.h"

#include <vector>

namespace window {

/// What part of a drawing a canvas shows: a centre in drawing units and device pixels a unit. No widget and
/// no time in it.
class CanvasView {
  public:
    struct Look {
        geometry::Point3 center;
        double scale = 1;
        friend bool operator==(const Look&, const Look&) = default;
    };

    /// Size of the canvas in device pixels; centre and scale stay.
    void resize(double width, double height);
    double width() const { return width_; }
    double height() const { return height_; }
    picture::Frame frame() const { return {0, 0, width_, height_}; }
    picture::Projection projection() const { return projection(look_); }
    picture::Projection projection(const Look& look) const;
    const Look& look() const { return look_; }
    void setLook(const Look& look) { look_ = limited(look); }

    /// The drawing unit under `at` stays there.
    void zoomAt(const picture::Point2& at, double factor);
    void pan(double dx, double dy);

    /// The look that shows a box with a free edge, a share of the canvas; an empty box the unit about 0,0.
    Look fitting(const geometry::Box& box, double margin) const;
    /// The box between two places on the canvas, for a zoom window.
    geometry::Box boxBetween(const picture::Point2& a, const picture::Point2& b) const;
    /// A look between two, `t` from 0 to 1: the scale runs by factors, so that a glide looks even.
    static Look between(const Look& from, const Look& to, double t);

    /// Notes the look of now for `previous`, unless it is the last one noted.
    void remember();
    /// The look noted last, which is forgotten; false where there is none.
    bool previous(Look& look);

  private:
    static Look limited(Look look);

    double width_ = 1;
    double height_ = 1;
    Look look_;
    std::vector<Look> past_;
};

}  // namespace window
