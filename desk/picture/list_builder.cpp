#include "desk/picture/list_builder.h"

#include "desk/drawing/drawing.h"
#include "desk/picture/hatch_lines.h"
#include "desk/picture/strokes.h"
#include "desk/picture/viewports.h"
#include "desk/shapes/read_extras.h"
#include "desk/shapes/read_polyline.h"
#include "desk/shapes/read_text.h"

#include <numeric>
#include <utility>

namespace picture {

namespace {

std::uint32_t sizeOf(const auto& container) { return static_cast<std::uint32_t>(container.size()); }

bool isText(std::string_view type) {
    return type == "TEXT" || type == "MTEXT" || type == "ATTRIB" || type == "ATTDEF";
}

/// Kinds that may rightly show nothing: an empty text, the tag of an attribute in a block.
bool mayBeEmpty(std::string_view type) { return isText(type) || type == "VIEWPORT"; }

/// The box about what an item draws by itself.
void addBounds(const DisplayList& list, Item& item) {
    Box& box = item.bounds;
    for (std::uint32_t i = item.firstStroke; i < item.strokeEnd; ++i) {
        const Stroke& stroke = list.strokes[i];
        const auto points = list.pointsOf(stroke);
        const double band = std::max(stroke.startWidth, stroke.endWidth) / 2;
        Box own;
        switch (stroke.kind) {
            case Stroke::Kind::Arc:
                geometry::addBounds(
                    geometry::ArcCurve{points[0], points[1], points[2], points[3].x, points[3].y}, own);
                break;
            case Stroke::Kind::Polyline:
                for (const Point3& point : points) own.add(point);
                break;
            case Stroke::Kind::Ray:
            case Stroke::Kind::XLine:
                own.add(points[0]);
                item.isEndless = true;
                break;
        }
        box.add(own.low - Vector3{band, band, 0});
        box.add(own.high + Vector3{band, band, 0});
    }
    for (std::uint32_t i = item.firstFill; i < item.fillEnd; ++i) {
        const Fill& fill = list.fills[i];
        const std::uint32_t count = list.endsOf(fill).back();
        for (std::uint32_t k = 0; k < count; ++k) box.add(list.points[fill.first + k]);
    }
    for (std::uint32_t i = item.firstText; i < item.textEnd; ++i) {
        const shapes::TextPiece& piece = list.texts[i].piece;
        for (const double x : {0.0, piece.width}) {
            for (const double y : {-shapes::kDescent, 1.0}) box.add(piece.frame.apply({x, y, 0}));
        }
    }
    for (std::uint32_t i = item.firstMark; i < item.markEnd; ++i) box.add(list.marks[i].at);
}

}  // namespace

std::size_t Counts::notDrawnTotal() const {
    return std::accumulate(notDrawn.begin(), notDrawn.end(), std::size_t{0},
                           [](std::size_t sum, const auto& entry) { return sum + entry.second; });
}

PenId ListBuilder::penOf(PenId pen, const std::optional<std::int32_t>& color) {
    if (!color) return pen;
    Pen own = pens_[pen];
    const std::int32_t value = *color;
    const bool isNumber = (value & shapes::TextPiece::kPaletteBit) != 0;
    own.look.color = isNumber ? paletteColor(value & 0xFF) : trueColor(value);
    own.colorFrom = From::Own;
    return pens_.intern(own);
}

void ListBuilder::addTexts(std::vector<shapes::TextPiece> pieces, PenId pen, DisplayList& list) {
    for (shapes::TextPiece& piece : pieces) {
        const PenId own = penOf(pen, piece.color);
        list.texts.push_back({std::move(piece), own});
    }
}

void ListBuilder::addGeometry(EntityId id, PenId pen, DisplayList& list) {
    const shapes::Geometry geometry = shapes::readGeometry(drawing_, id);
    addStrokes(geometry.strokes, pen, !shapes::runsThroughVertices(drawing_, id), list);
    for (const geometry::Fill& fill : geometry.fills) addFill(fill.loops, pen, list);
    for (const shapes::EndlessLine& line : geometry.endless) {
        addStroke(geometry::LineCurve{line.base, line.direction}, pen, 0, 0, list);
        list.strokes.back().kind = line.bothWays ? Stroke::Kind::XLine : Stroke::Kind::Ray;
    }
    for (const Point3& point : geometry.points) list.marks.push_back({point, pen});
}

void ListBuilder::addTextGround(EntityId id, PenId pen, DisplayList& list) {
    const std::optional<shapes::TextGround> ground = shapes::readMTextGround(drawing_.tags(id), textStyles_);
    if (!ground) return;
    if (ground->isFilled) {
        addFill({ground->border}, penOf(pen, ground->color), list);
        list.fills.back().covers = !ground->color;
    }
    if (!ground->isFramed) return;
    std::vector<shapes::Stroke> frame;
    for (const geometry::Curve& edge : ground->border) frame.push_back({edge});
    addStrokes(frame, pen, false, list);
}

void ListBuilder::addOwn(EntityId id, PenId pen, bool inBlock, DisplayList& list) {
    const std::string_view type = drawing_.type(id);
    if (isText(type)) {
        if (type == "MTEXT") addTextGround(id, pen, list);
        if (type != "ATTDEF" || !inBlock || drawing_.attribute(id).isConstant()) {
            addTexts(shapes::readTexts(drawing_, textStyles_, id, !inBlock), pen, list);
        }
    } else if (type == "HATCH") {
        addHatch(drawing_.tags(id), pen, pens_, list);
    } else {
        addGeometry(id, pen, list);
        addTexts(shapes::readExtraTexts(drawing_, textStyles_, id), pen, list);
        if (type == "WIPEOUT" && !list.fills.empty()) list.fills.back().covers = true;
    }
}

void ListBuilder::addAttributes(EntityId id, DisplayList& list, Item& item) {
    for (const EntityId attribute : drawing_.attributes(id)) {
        if (!drawing_.isDisplayed(attribute)) continue;
        const PenId pen = pens_.intern(styles_.of(attribute).pen);
        addTexts(shapes::readTexts(drawing_, textStyles_, attribute, false), pen, list);
    }
    item.textEnd = sizeOf(list.texts);
}

void ListBuilder::addPlacement(EntityId id, const Styles::EntityStyle& style, DisplayList& list, Item& item) {
    auto placed = shapes::readPlaced(drawing_, id);
    if (!placed) return;
    item.placement = sizeOf(list.placements);
    list.placements.push_back({*placed, style.pen, style.layer});
}

Shown ListBuilder::add(EntityId id, bool inBlock, DisplayList& list) {
    const std::string_view type = drawing_.type(id);
    if (drawing_.isInvisible(id) && !showsHidden_) return Shown::Invisible;
    const drawing::Layer& layer = drawing_.layer(id);
    const Styles::EntityStyle style = styles_.of(id);
    // In a block, what is on layer 0 follows the layer of the reference instead.
    const bool followsReference = inBlock && style.onLayerZero;
    Item item;
    if (!followsReference && layer.frozen && !showsHidden_) return Shown::Frozen;
    item.entity = id;
    item.onLayerZero = followsReference;
    item.hidesZero = !followsReference && layer.off && !showsHidden_;
    item.firstStroke = sizeOf(list.strokes);
    item.firstFill = sizeOf(list.fills);
    item.firstText = sizeOf(list.texts);
    item.firstMark = sizeOf(list.marks);
    addPlacement(id, style, list, item);
    if (item.hidesZero && item.placement == Item::kNone) return Shown::Off;
    item.layer = styles_.layerNumber(id);
    const PenId pen = pens_.intern(style.pen);
    addOwn(id, pen, inBlock, list);
    if (type == "VIEWPORT") {
        if (const auto viewport = readViewport(drawing_.tags(id))) {
            item.viewport = sizeOf(list.viewports);
            list.viewports.push_back(*viewport);
        }
    }
    item.fillEnd = sizeOf(list.fills);
    // The lines of a hatch belong to its fill.
    item.strokeEnd = type == "HATCH" ? item.firstStroke : sizeOf(list.strokes);
    item.markEnd = sizeOf(list.marks);
    addAttributes(id, list, item);
    addBounds(list, item);
    if (item.bounds.empty() && item.placement == Item::kNone) {
        return mayBeEmpty(type) ? Shown::Empty : Shown::NotDrawn;
    }
    list.items.push_back(item);
    return Shown::Drawn;
}

}  // namespace picture
