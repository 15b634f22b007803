#include "desk/window/canvas_lights.h"

#include "desk/shapes/read_text.h"

#include <QElapsedTimer>
#include <QImage>
#include <cmath>

namespace window {

using drawing::EntityId;
using picture::Frame;
using picture::Point2;

namespace {

/// Above so many entities or points no halos are drawn.
constexpr std::size_t kMostHalos = 5'000;
constexpr std::size_t kMostHaloPoints = 50'000;
constexpr std::size_t kPointsAtOnce = 500;  ///< wide lines take their time
/// A reference smaller than this on the screen, in logical pixels, is its grip alone.
constexpr double kSmallest = 4;
constexpr double kFillOpacity = 0.35;

/// Grips that would stand on one another are drawn once: a view holds only so many.
class GripGrid {
  public:
    GripGrid(const Frame& frame, double cell)
        : frame_(frame),
          cell_(std::max(cell, 1.0)),
          columns_(static_cast<std::size_t>(frame.width() / cell_) + 1),
          taken_(columns_ * (static_cast<std::size_t>(frame.height() / cell_) + 1)) {}

    /// Whether a grip at this place is to be drawn.
    bool take(const Point2& at) {
        if (!frame_.contains(at)) return true;  // it may reach into the view
        const auto column = static_cast<std::size_t>((at.x - frame_.left) / cell_);
        const auto row = static_cast<std::size_t>((at.y - frame_.top) / cell_);
        const std::size_t place = std::min(row * columns_ + column, taken_.size() - 1);
        if (taken_[place]) return false;
        taken_[place] = true;
        return true;
    }

  private:
    Frame frame_;
    double cell_;
    std::size_t columns_;
    std::vector<bool> taken_;
};

Frame clipped(const Frame& frame, const Frame& by) {
    return {std::max(frame.left, by.left), std::max(frame.top, by.top), std::min(frame.right, by.right),
            std::min(frame.bottom, by.bottom)};
}

}  // namespace

/// Draws what `draw` draws, the halo under it. The halo is made opaque and laid over as a whole, so that
/// lines that cross don't darken each other.
template <typename Draw>
void CanvasLights::drawWith(QPainter& painter, const Frame& frame, const Light& light, Draw&& draw) {
    painter::Inks inks = inks_;
    if (light.color.isValid()) {
        inks.setSingle(light.color);
    } else {
        inks.setMixed(light.mixWith, 0.25);
    }
    picture::RenderOptions options;
    options.frame = frame;
    options.solidLines = true;
    options.pointsAtOnce = kPointsAtOnce;
    QElapsedTimer timer;
    options.leaveOff = [&] { return timer.elapsed() > light.longest; };
    painter::QtCanvas::Style style;
    style.fillOpacity = kFillOpacity;
    const auto drawInto = [&](QPainter& on, double width) {
        style.hairline = std::max(width * ratio_, 1.0);
        timer.start();
        painter::QtCanvas canvas(on, inks, glyphs_, style);
        picture::Renderer renderer(picture_, canvas, options);
        draw(renderer);
        canvas.flush();
    };
    const Frame seen = clipped(frame.widened(light.halo * ratio_), view_.frame());
    if (light.halo > 0 && seen.width() >= 1 && seen.height() >= 1) {
        QImage halo(static_cast<int>(std::ceil(seen.width())), static_cast<int>(std::ceil(seen.height())),
                    QImage::Format_ARGB32_Premultiplied);
        halo.fill(Qt::transparent);
        QPainter on(&halo);
        const QPointF corner(std::floor(seen.left), std::floor(seen.top));
        on.translate(-corner);
        style.fills = false;
        drawInto(on, light.halo);
        style.fills = true;
        on.end();
        painter.setOpacity(light.haloOpacity);
        painter.drawImage(corner, halo);
        painter.setOpacity(1);
    }
    style.solid = !light.dotted;
    style.dashed = light.dashed;
    drawInto(painter, light.width);
}

Frame CanvasLights::frameOf(EntityId entity) const {
    const auto number = picture_.itemOf(space_, entity);
    if (!number) return {};
    const picture::Item& item = picture_.list(space_).items[*number];
    return item.bounds.empty() ? Frame{} : view_.projection().apply(item.bounds);
}

std::optional<Point2> CanvasLights::insertionOf(EntityId entity) const {
    const drawing::Drawing& drawing = picture_.drawing();
    if (drawing.isErased(entity) || drawing.type(entity) != "INSERT") return std::nullopt;
    const drawing::Placement placement = drawing.placement(entity);
    return view_.projection().apply(geometry::ocsToWcs(placement.insertion, placement.extrusion));
}

void CanvasLights::drawGrip(QPainter& painter, const Point2& at, const Light& light) const {
    if (light.grip <= 0) return;
    const double side = light.grip * ratio_;
    const QRectF box(std::round(at.x - side / 2), std::round(at.y - side / 2), std::round(side),
                     std::round(side));
    painter.fillRect(box.adjusted(-ratio_, -ratio_, ratio_, ratio_), inks_.ground());
    painter.fillRect(box, light.color);
}

void CanvasLights::draw(QPainter& painter, const std::vector<EntityId>& entities, const Light& light) {
    std::vector<std::size_t> items;
    std::vector<EntityId> grips;
    Frame frame;
    std::size_t points = 0;
    const picture::DisplayList& list = picture_.list(space_);
    for (const EntityId entity : entities) {
        const auto number = picture_.itemOf(space_, entity);
        if (!number) continue;
        const picture::Item& item = list.items[*number];
        const Frame where = item.isEndless ? view_.frame() : frameOf(entity);
        if (where.empty() || !where.meets(view_.frame())) continue;
        if (item.placement != picture::Item::kNone) grips.push_back(entity);
        const bool isSmall = where.width() < kSmallest * ratio_ && where.height() < kSmallest * ratio_;
        if (isSmall && light.grip > 0 && item.placement != picture::Item::kNone) continue;
        items.push_back(*number);
        for (std::uint32_t i = item.firstStroke; i < item.strokeEnd; ++i) points += list.strokes[i].count;
        frame.add({where.left, where.top});
        frame.add({where.right, where.bottom});
    }
    Light used = light;
    if (items.size() > kMostHalos || points > kMostHaloPoints) used.halo = 0;
    if (!items.empty()) {
        const Frame seen = clipped(frame.widened(8 * ratio_), view_.frame());
        drawWith(painter, seen, used, [&](picture::Renderer& renderer) {
            for (const std::size_t item : items) renderer.drawItem(space_, item, view_.projection());
        });
    }
    GripGrid grid(view_.frame(), light.grip * ratio_ / 2);
    for (const EntityId entity : grips) {
        if (const auto at = insertionOf(entity); at && grid.take(*at)) drawGrip(painter, *at, used);
    }
}

void CanvasLights::drawHidden(QPainter& painter, const std::vector<EntityId>& entities, const Light& light) {
    if (entities.empty()) return;
    const picture::DisplayList list = picture_.listEvenHidden(entities);
    drawWith(painter, view_.frame(), light,
             [&](picture::Renderer& renderer) { renderer.drawList(list, view_.projection()); });
    for (const EntityId entity : entities) {
        if (const auto at = insertionOf(entity)) drawGrip(painter, *at, light);
    }
}

void CanvasLights::drawInPlaceOf(QPainter& painter, const std::vector<EntityId>& references,
                                 drawing::BlockId block, const Light& light) {
    const drawing::Drawing& drawing = picture_.drawing();
    std::vector<drawing::Placement> places;
    for (const EntityId id : references) {
        if (!drawing.isErased(id) && drawing.type(id) == "INSERT") places.push_back(drawing.placement(id));
    }
    drawAt(painter, places, block, light);
}

void CanvasLights::drawAt(QPainter& painter, const std::vector<drawing::Placement>& places,
                          drawing::BlockId block, const Light& light) {
    constexpr std::size_t kMostShapes = 2'000;
    if (places.size() <= kMostShapes) {
        const geometry::Point3& base = picture_.drawing().blocks()[block].basePoint;
        drawWith(painter, view_.frame(), light, [&](picture::Renderer& renderer) {
            for (const drawing::Placement& place : places) {
                renderer.drawBlock(block, view_.projection() * drawing::referenceTransform(place, base));
            }
        });
        return;
    }
    // Too many shapes to tell apart: the base points alone.
    for (const drawing::Placement& place : places) {
        const Point2 at = view_.projection().apply(geometry::ocsToWcs(place.insertion, place.extrusion));
        if (view_.frame().contains(at)) drawBasePoint(painter, at, light.color);
    }
}

void CanvasLights::drawBlock(QPainter& painter, drawing::BlockId block, const drawing::Placement& placement,
                             const std::vector<std::pair<QString, QString>>& values, const Light& light) {
    const drawing::Drawing& drawing = picture_.drawing();
    const drawing::Block& definition = drawing.blocks()[block];
    const geometry::Transform place = drawing::referenceTransform(placement, definition.basePoint);
    picture::DisplayList texts;
    for (const EntityId id : definition.attributeDefinitions) {
        const QString tag = QString::fromStdString(drawing.attributeTag(id));
        QString value = QString::fromUtf8("…");
        for (const auto& [name, known] : values) {
            if (name.compare(tag, Qt::CaseInsensitive) == 0) value = known;
        }
        for (shapes::TextPiece& piece :
             shapes::readDefinitionTexts(drawing, picture_.textStyles(), id, value.toStdString())) {
            texts.texts.push_back({std::move(piece), picture_.plainPen()});
        }
    }
    drawWith(painter, view_.frame(), light, [&](picture::Renderer& renderer) {
        const picture::Projection projection = view_.projection() * place;
        renderer.drawBlock(block, projection);
        renderer.drawTexts(texts, projection);
    });
}

void CanvasLights::drawBasePoint(QPainter& painter, const Point2& at, const QColor& color) const {
    const double radius = 5 * ratio_;
    const double arm = 8 * ratio_;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, 1.5 * ratio_));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QPointF(at.x, at.y), radius, radius);
    painter.drawLine(QPointF(at.x - arm, at.y), QPointF(at.x + arm, at.y));
    painter.drawLine(QPointF(at.x, at.y - arm), QPointF(at.x, at.y + arm));
}

}  // namespace window
