#pragma once

#include "desk/picture/pen.h"
#include "desk/shapes/geometry.h"
#include "desk/shapes/text_piece.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace picture {

/// A line of the picture in the coordinates of the block or space; its points stand in the list.
struct Stroke {
    enum class Kind : std::uint8_t {
        Polyline,  ///< through its points
        Arc,       ///< four points: centre, cosine, sine, (start, end, 0), as geometry::ArcCurve has them
        Ray,       ///< two points: where it begins, and its direction
        XLine,     ///< the same in both directions
    };
    std::uint32_t first = 0;
    std::uint32_t count = 0;
    PenId pen = 0;
    Kind kind = Kind::Polyline;
    bool dashesEach = false;  ///< its linetype begins anew at each point
    float startWidth = 0;     ///< drawing units; 0 is thin
    float endWidth = 0;
};

/// A filled area of loops, even-odd.
struct Fill {
    std::uint32_t firstEnd = 0;  ///< in the list's `ends`
    std::uint32_t endCount = 0;
    std::uint32_t first = 0;  ///< its points; `ends` counts from here
    PenId pen = 0;
    /// A hatch pattern: its lines are `spacing` drawing units from one to the next and stand for the fill at
    /// scales that can tell them apart. 0 for a plain fill.
    float spacing = 0;
    std::uint32_t firstLine = 0;  ///< those lines among the list's strokes
    std::uint32_t lineEnd = 0;
    bool covers = false;  ///< a wipeout: shows the ground
};

struct Text {
    shapes::TextPiece piece;
    PenId pen = 0;
};

/// A POINT.
struct Mark {
    Point3 at;
    PenId pen = 0;
};

/// A block that an entity places.
struct Placement {
    shapes::Placed placed;
    Pen pen;     ///< handed down for ByBlock
    Look layer;  ///< and for layer 0
};

/// A window of a layout onto model space.
struct Viewport {
    Point3 center;  ///< on the paper
    double width = 0;
    double height = 0;
    Transform modelToPaper;               ///< Z falls away
    std::vector<drawing::Handle> frozen;  ///< layers that it alone freezes
};

/// What one entity draws.
struct Item {
    EntityId entity = kNoEntity;
    std::uint32_t layer = 0;  ///< place in the layer table, for what a viewport freezes
    std::uint32_t firstStroke = 0, strokeEnd = 0;
    std::uint32_t firstFill = 0, fillEnd = 0;
    std::uint32_t firstText = 0, textEnd = 0;
    std::uint32_t firstMark = 0, markEnd = 0;
    static constexpr std::uint32_t kNone = 0xFFFFFFFF;
    std::uint32_t placement = kNone;
    std::uint32_t viewport = kNone;
    bool onLayerZero = false;  ///< shown where the reference's layer is
    bool hidesZero = false;    ///< a reference on a layer that is off: its block's layer 0 isn't shown
    bool isEndless = false;
    Box bounds;  ///< without what is endless
};

/// What a block or a space draws, in drawing order and its own coordinates.
struct DisplayList {
    std::vector<Item> items;
    std::vector<Point3> points;
    std::vector<Stroke> strokes;
    std::vector<Fill> fills;
    std::vector<std::uint32_t> ends;
    std::vector<Text> texts;
    std::vector<Mark> marks;
    std::vector<Placement> placements;
    std::vector<Viewport> viewports;
    Box bounds;
    bool isEndless = false;

    std::span<const Point3> pointsOf(const Stroke& stroke) const {
        return std::span(points).subspan(stroke.first, stroke.count);
    }
    std::span<const std::uint32_t> endsOf(const Fill& fill) const {
        return std::span(ends).subspan(fill.firstEnd, fill.endCount);
    }
};

}  // namespace picture
