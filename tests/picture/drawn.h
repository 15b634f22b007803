#pragma once

#include "desk/picture/renderer.h"
#include "tests/drawing/plain_drawing.h"

#include <cmath>
#include <sstream>
#include <string>
#include <vector>

namespace picture {

/// Writes down what is drawn, a line each, in drawing units: "ff0000 0,0 10,0".
class Notes : public Canvas {
  public:
    void setInk(const Ink& ink) override { ink_ = ink; }
    void polyline(std::span<const Point2> points) override { note("", points); }
    void fill(std::span<const Point2> points, std::span<const std::uint32_t> ends) override {
        note("fill" + std::to_string(ends.size()) + " ", points);
    }
    void cover(std::span<const Point2> points, std::span<const std::uint32_t>) override {
        note("cover ", points);
    }
    void dot(const Point2& at) override { note("dot ", std::span(&at, 1)); }
    void text(const PlacedText& text) override {
        note("'" + text.piece.text + "' ", std::span(&text.origin, 1));
    }
    void beginClip(std::span<const Point2> polygon) override { note("clip ", polygon); }
    void endClip() override { lines.emplace_back("end"); }

    std::vector<std::string> lines;

  private:
    static double rounded(double value) { return std::round(value * 1000) / 1000 + 0.0; }
    void note(const std::string& what, std::span<const Point2> points) {
        std::ostringstream line;
        const Color& color = ink_.color;
        char text[16];
        std::snprintf(text, sizeof text, "%02x%02x%02x ", color.red, color.green, color.blue);
        line << what << (color.isForeground ? "fore " : text);
        if (ink_.opacity < 1) line << std::lround(ink_.opacity * 100) << "% ";
        if (ink_.width > 0) line << "w" << rounded(ink_.width) << " ";
        for (const Point2& p : points) line << rounded(p.x) << "," << rounded(p.y) << " ";
        lines.push_back(line.str().substr(0, line.str().size() - 1));
    }
    Ink ink_;
};

/// A projection onto drawing units, Y upwards.
inline Projection plainProjection() {
    Projection projection;
    projection.toY = {0, 1, 0};
    return projection;
}

/// All that a space draws.
inline std::vector<std::string> drawn(Picture& picture, BlockId space,
                                      const Frame& frame = {-1e4, -1e4, 1e4, 1e4}) {
    Notes notes;
    RenderOptions options;
    options.frame = frame;
    options.smallest = 0;
    options.legible = 0;
    Renderer(picture, notes, options).draw(space, plainProjection());
    return notes.lines;
}
inline std::vector<std::string> drawn(const Drawing& drawing) {
    Picture picture(drawing);
    return drawn(picture, drawing.modelSpace());
}

}  // namespace picture
