#pragma once

#include "desk/picture/color.h"
#include "desk/picture/display_list.h"
#include "desk/picture/projection.h"
#include "desk/shapes/text_piece.h"

#include <cstdint>
#include <span>
#include <vector>

namespace picture {

/// With what is drawn.
struct Ink {
    Color color;
    double width = 0;     ///< of strokes in device units; 0 is a hairline of one pixel
    double opacity = 1;   ///< below 1 what lies below shows through
    bool isBand = false;  ///< a wide polyline or a dash: flat ends and sharp corners instead of round ones

    friend bool operator==(const Ink&, const Ink&) = default;
};

/// A text on the picture: its baseline begins at `origin`, one capital height of text goes along `along` and
/// up `up`.
struct PlacedText {
    const shapes::TextPiece& piece;
    Point2 origin;
    Point2 along;
    Point2 up;
};

/// What a picture is drawn on: a screen, an image file. All in device units.
class Canvas {
  public:
    virtual ~Canvas() = default;

    /// For all that follows.
    virtual void setInk(const Ink& ink) = 0;
    virtual void polyline(std::span<const Point2> points) = 0;
    /// A filled area by the even-odd rule; loop i ends before `ends[i]`.
    virtual void fill(std::span<const Point2> points, std::span<const std::uint32_t> ends) = 0;
    /// The same in the colour of the ground, with nothing shining through.
    virtual void cover(std::span<const Point2> points, std::span<const std::uint32_t> ends) = 0;
    /// A dot of one pixel.
    virtual void dot(const Point2& at) = 0;
    virtual void text(const PlacedText& text) = 0;
    /// What follows is seen only inside the polygon as well, until `endClip`.
    virtual void beginClip(std::span<const Point2> polygon) = 0;
    virtual void endClip() = 0;
};

}  // namespace picture
