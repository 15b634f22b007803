#include "desk/picture/renderer.h"

#include "desk/drawing/drawing.h"
#include "desk/picture/dashes.h"

#include <algorithm>
#include <cmath>

namespace picture {

namespace {

constexpr std::size_t kDeepest = 100;
/// Beyond the frame, device units.
constexpr double kEdge = 16;
/// Blocks nested in blocks may multiply beyond all bounds; a picture stops after so many things.
constexpr std::size_t kMostSteps = 20'000'000;
/// A linetype whose pattern is shorter on the picture is drawn continuous, a hatch pattern whose lines are
/// nearer to each other as a tone.
constexpr double kFinestPattern = 3;
constexpr double kFinestHatch = 2.5;
/// How dark that tone is.
constexpr double kToneOpacity = 0.35;
/// Coordinates beyond this many device units from the frame are cut off before a canvas sees them.
constexpr double kFarOutside = 2000;

/// Adds a point unless it lies in the same place as the one before, so that a line of a million vertices
/// costs what is seen of it.
void addDistinct(const Point2& point, std::vector<Point2>& points) {
    constexpr double kSame = 0.2;  // device units
    const bool isSame = !points.empty() && std::abs(points.back().x - point.x) < kSame &&
                        std::abs(points.back().y - point.y) < kSame;
    if (!isSame) points.push_back(point);
}

double opacity(const Look& look) { return look.opacity / 255.0; }

/// Cuts a loop to a frame (Sutherland and Hodgman), so that no canvas has to fill areas of any size.
void clipLoop(std::vector<Point2>& loop, const Frame& frame) {
    std::vector<Point2> result;
    const auto cut = [&](auto&& inside, auto&& at) {
        result.clear();
        for (std::size_t i = 0; i < loop.size(); ++i) {
            const Point2& from = loop[i];
            const Point2& to = loop[(i + 1) % loop.size()];
            if (inside(from)) result.push_back(from);
            if (inside(from) != inside(to)) result.push_back(at(from, to));
        }
        loop.swap(result);
    };
    const auto atX = [](double x) {
        return [x](const Point2& a, const Point2& b) {
            return Point2{x, a.y + (b.y - a.y) * (x - a.x) / (b.x - a.x)};
        };
    };
    const auto atY = [](double y) {
        return [y](const Point2& a, const Point2& b) {
            return Point2{a.x + (b.x - a.x) * (y - a.y) / (b.y - a.y), y};
        };
    };
    cut([&](const Point2& p) { return p.x >= frame.left; }, atX(frame.left));
    cut([&](const Point2& p) { return p.x <= frame.right; }, atX(frame.right));
    cut([&](const Point2& p) { return p.y >= frame.top; }, atY(frame.top));
    cut([&](const Point2& p) { return p.y <= frame.bottom; }, atY(frame.bottom));
}

}  // namespace

Renderer::Renderer(Picture& picture, Canvas& canvas, const RenderOptions& options)
    : picture_(picture), canvas_(canvas), options_(options), clip_(options.frame) {}

void Renderer::startSpace(const Projection& projection) {
    levels_.clear();
    rootScale_ = projection.scale();
    clip_ = options_.frame;
    inViewport_ = false;
    ink_.reset();
}

void Renderer::start(BlockId space, const Projection& projection) {
    startSpace(projection);
    Level level;
    level.state = {&picture_.list(space), projection, {}, true};
    level.chosen = itemsNear(space, projection);
    levels_.push_back(std::move(level));
}

/// The items of a space that may be seen.
std::vector<std::uint32_t> Renderer::itemsNear(BlockId space, const Projection& projection) {
    geometry::Box area;
    const bool fromAbove = projection.toX.z == 0 && projection.toY.z == 0 && projection.scale() > 0;
    if (fromAbove) {
        // A text may reach a little beyond the box that picks take it for.
        const Frame frame = clip_.widened(kEdge);
        for (const double x : {frame.left, frame.right}) {
            for (const double y : {frame.top, frame.bottom}) area.add(projection.unproject({x, y}));
        }
    } else {
        area = {{-Box::kFar, -Box::kFar, 0}, {Box::kFar, Box::kFar, 0}};
    }
    std::vector<std::uint32_t> items;
    picture_.forEachItemNear(space, {area.low, area.high},
                             [&](std::size_t item) { items.push_back(static_cast<std::uint32_t>(item)); });
    return items;
}

void Renderer::drawItem(BlockId space, std::size_t item, const Projection& projection) {
    startSpace(projection);
    Level level;
    level.state = {&picture_.list(space), projection, {}, true};
    level.chosen = {static_cast<std::uint32_t>(item)};
    levels_.push_back(std::move(level));
    finish();
}

void Renderer::drawList(const DisplayList& list, const Projection& projection) {
    startSpace(projection);
    levels_.emplace_back().state = {&list, projection, {}, true};
    finish();
}

void Renderer::drawTexts(const DisplayList& list, const Projection& projection) {
    startSpace(projection);
    for (const Text& text : list.texts) drawText({&list, projection, {}, true}, text);
}

void Renderer::drawBlock(BlockId block, const Projection& projection, const Context& context) {
    startSpace(projection);
    levels_.emplace_back().state = {&picture_.list(block), projection, context, true};
    finish();
}

/// Draws one thing of the innermost list, or a part of a large one, or leaves the list.
void Renderer::step() {
    lastCost_ = 1;
    Level& level = levels_.back();
    const std::size_t count = level.chosen ? level.chosen->size() : level.state.list->items.size();
    if (level.next >= count) return leave();
    if (++steps_ > kMostSteps) return levels_.clear();
    const State state = level.state;
    const Item& item = state.list->items[level.chosen ? (*level.chosen)[level.next] : level.next];
    const bool shown = state.showsZero || !item.onLayerZero;
    if (level.strokesDone > 0 || isSeen(state, item)) {
        if (shown && !drawOwn(state, item, level.strokesDone)) return;
    } else {
        ++level.next;
        return;
    }
    level.strokesDone = 0;
    ++level.next;
    // These put levels upon this one.
    if (shown && item.viewport != Item::kNone && !inViewport_) {
        enterViewport(state, state.list->viewports[item.viewport]);
    }
    if (item.placement != Item::kNone) enterPlacement(state, item, state.list->placements[item.placement]);
}

/// Goes on to the next copy of an array, or back to the list that holds this one.
void Renderer::leave() {
    Level& level = levels_.back();
    if (level.array != nullptr) {
        if (++level.row == level.cells.rowEnd) {
            level.row = level.cells.rowBegin;
            ++level.column;
        }
        if (level.column < level.cells.columnEnd) return startCopy(level);
    }
    if (level.isViewport) {
        canvas_.endClip();
        ink_.reset();
        inViewport_ = false;
        rootScale_ = outerScale_;
        clip_ = outerClip_;
    }
    levels_.pop_back();
}

void Renderer::startCopy(Level& level) {
    if (++steps_ > kMostSteps) return levels_.clear();
    const Transform place = placedTransform(picture_.drawing(), level.array->placed, level.column, level.row);
    level.state.projection = level.outer * place;
    level.next = 0;
}

bool Renderer::isFrozen(const Item& item) const {
    return inViewport_ && item.layer < frozen_.size() && frozen_[item.layer] && !item.onLayerZero;
}

/// Whether more of an item is seen than a dot, which is drawn at once.
bool Renderer::isSeen(const State& state, const Item& item) {
    if (item.isEndless) return true;
    const Frame where = item.bounds.empty() ? Frame{} : state.projection.apply(item.bounds);
    if (where.empty() || !where.meets(clip_) || isFrozen(item)) return false;
    if (where.width() >= options_.smallest || where.height() >= options_.smallest) return true;
    drawDot(state, item, where);
    return false;
}

/// Draws what an item has of its own, from a stroke on. Returns whether that is all of it.
bool Renderer::drawOwn(const State& state, const Item& item, std::uint32_t& strokesDone) {
    const DisplayList& list = *state.list;
    if (strokesDone == 0) {
        for (std::uint32_t i = item.firstFill; i < item.fillEnd; ++i) drawFill(state, list.fills[i]);
    }
    for (; item.firstStroke + strokesDone < item.strokeEnd; ++strokesDone) {
        if (lastCost_ > options_.pointsAtOnce && strokesDone > 0) return false;
        const Stroke& stroke = list.strokes[item.firstStroke + strokesDone];
        drawStroke(state, stroke);
        lastCost_ += stroke.count;
    }
    for (std::uint32_t i = item.firstText; i < item.textEnd; ++i) drawText(state, list.texts[i]);
    for (std::uint32_t i = item.firstMark; i < item.markEnd; ++i) drawMark(state, list.marks[i]);
    return true;
}

void Renderer::drawDot(const State& state, const Item& item, const Frame& where) {
    if (item.onLayerZero && !state.showsZero) return;
    const DisplayList& list = *state.list;
    PenId pen = 0;
    if (item.firstStroke < item.strokeEnd) {
        pen = list.strokes[item.firstStroke].pen;
    } else if (item.firstFill < item.fillEnd) {
        pen = list.fills[item.firstFill].pen;
    } else if (item.firstText < item.textEnd) {
        pen = list.texts[item.firstText].pen;
    } else if (item.firstMark < item.markEnd) {
        pen = list.marks[item.firstMark].pen;
    } else if (item.placement != Item::kNone) {
        setInk({state.context.resolve(list.placements[item.placement].pen).color, 0});
        canvas_.dot({where.left, where.top});
        return;
    } else {
        return;
    }
    setInk({state.context.resolve(picture_.pens()[pen]).color, 0});
    canvas_.dot({where.left, where.top});
}

void Renderer::enterPlacement(const State& state, const Item& item, const Placement& placement) {
    if (levels_.size() > kDeepest) return;
    const shapes::Placed& placed = placement.placed;
    const DisplayList& list = picture_.list(placed.block);
    if (list.items.empty()) return;
    Level level;
    level.state.list = &list;
    level.state.context.reference = state.context.resolve(placement.pen);
    level.state.context.referenceLayer = item.onLayerZero ? state.context.referenceLayer : placement.layer;
    level.state.showsZero = item.onLayerZero ? state.showsZero : !item.hidesZero;
    level.array = &placement;
    level.outer = state.projection;
    const drawing::Placement& array = placed.placement;
    if (array.columns > 1 || array.rows > 1) {
        // Of a large array only the copies on the picture are gone through.
        const auto at = [&](int column, int row) {
            return state.projection * placedTransform(picture_.drawing(), placed, column, row);
        };
        const Projection origin = at(0, 0);
        const auto step = [&](const Projection& to) {
            return Vector3{to.origin.x - origin.origin.x, to.origin.y - origin.origin.y, 0};
        };
        const Frame frame = list.bounds.empty() ? Frame{} : origin.apply(list.bounds);
        const Box first{{frame.left, frame.top, 0}, {frame.right, frame.bottom, 0}};
        const geometry::Rectangle area({clip_.left, clip_.top, 0}, {clip_.right, clip_.bottom, 0});
        const shapes::CellRange all{0, std::max(array.columns, 1), 0, std::max(array.rows, 1)};
        level.cells =
            list.isEndless ? all : shapes::cellsNear(array, first, step(at(1, 0)), step(at(0, 1)), area);
        if (level.cells.columnBegin >= level.cells.columnEnd || level.cells.rowBegin >= level.cells.rowEnd)
            return;
    }
    level.column = level.cells.columnBegin;
    level.row = level.cells.rowBegin;
    startCopy(level);
    levels_.push_back(std::move(level));
}

void Renderer::enterViewport(const State& state, const Viewport& viewport) {
    std::vector<Point2> polygon;
    Frame frame;
    const double x = viewport.width / 2;
    const double y = viewport.height / 2;
    for (const auto& [dx, dy] : {std::pair(-x, -y), std::pair(x, -y), std::pair(x, y), std::pair(-x, y)}) {
        polygon.push_back(state.projection.apply(viewport.center + Vector3{dx, dy, 0}));
        frame.add(polygon.back());
    }
    if (!frame.meets(clip_)) return;
    const std::vector<drawing::Layer>& layers = picture_.drawing().layers().all();
    frozen_.assign(layers.size(), false);
    for (const drawing::Handle handle : viewport.frozen) {
        const EntityId record = picture_.drawing().byHandle(handle);
        for (std::size_t i = 0; i < layers.size(); ++i) {
            if (record != kNoEntity && layers[i].record == record) frozen_[i] = true;
        }
    }
    outerClip_ = clip_;
    outerScale_ = rootScale_;
    clip_ = {std::max(clip_.left, frame.left), std::max(clip_.top, frame.top),
             std::min(clip_.right, frame.right), std::min(clip_.bottom, frame.bottom)};
    inViewport_ = true;
    canvas_.beginClip(polygon);
    const BlockId model = picture_.drawing().modelSpace();
    Level level;
    level.state = {&picture_.list(model), state.projection * viewport.modelToPaper, {}, true};
    level.isViewport = true;
    rootScale_ = level.state.projection.scale();
    level.chosen = itemsNear(model, level.state.projection);
    levels_.push_back(std::move(level));
}

void Renderer::setInk(const Ink& ink) {
    if (ink_ && *ink_ == ink) return;
    ink_ = ink;
    canvas_.setInk(ink);
}

/// Of a band `width` device units wide, or of a line by its weight. Returns whether it is a band that shows.
bool Renderer::setStrokeInk(const Look& look, double width) {
    if (width >= 1.2) {
        setInk({look.color, width, opacity(look), true});
        return true;
    }
    const double weight =
        options_.pixelsPerMillimetre ? look.weight / 100.0 * *options_.pixelsPerMillimetre : 0;
    setInk({look.color, weight < 1 ? 0 : weight, opacity(look), false});
    return false;
}

void Renderer::emitPolyline(std::span<const Point2> points) {
    const Frame safe = clip_.widened(kFarOutside);
    if (std::all_of(points.begin(), points.end(), [&](const Point2& p) { return safe.contains(p); })) {
        canvas_.polyline(points);
    } else {
        clipPolyline(points, clip_.widened(ink_->width + 4),
                     [&](std::span<const Point2> part) { canvas_.polyline(part); });
    }
}

/// With `each` a linetype begins anew at each point.
void Renderer::strokePoints(const Look& look, double lineTypeScale, bool each) {
    if (points_.size() < 2) return;
    const LineType& type = picture_.lineTypes()[look.lineType];
    const double scale = picture_.lineTypes().scale() * lineTypeScale * rootScale_;
    if (options_.solidLines || type.elements.empty() || type.length * scale < kFinestPattern) {
        emitPolyline(points_);
        return;
    }
    if (ink_->width > 0 && !ink_->isBand) {
        // Round ends would close the gaps.
        Ink flat = *ink_;
        flat.isBand = true;
        setInk(flat);
    }
    const Frame frame = clip_.widened(ink_->width + 4);
    const std::span<const Point2> points = points_;
    const std::size_t stretch = each ? 2 : points.size();
    for (std::size_t i = 0; i + stretch <= points.size(); ++i) {
        dashPolyline(points.subspan(i, stretch), type, scale, frame,
                     [&](std::span<const Point2> part) { canvas_.polyline(part); });
    }
}

void Renderer::arcPoints(const Projection& projection, std::span<const Point3> arc) {
    constexpr double kSagitta = 0.12;
    constexpr int kMostChords = 4096;
    const Point2 center = projection.apply(arc[0]);
    const Point2 cosine = projection.applyDirection(arc[1]);
    const Point2 sine = projection.applyDirection(arc[2]);
    const double start = arc[3].x;
    const double sweep = arc[3].y - start;
    const double radius = std::max(std::hypot(cosine.x, cosine.y), std::hypot(sine.x, sine.y));
    const double step = radius > kSagitta ? 2 * std::acos(1 - kSagitta / radius) : geometry::kPi / 2;
    const double wanted = std::ceil(std::abs(sweep) / std::max(step, 1e-6));
    const int count = static_cast<int>(std::clamp(wanted, 1.0, static_cast<double>(kMostChords)));
    points_.clear();
    points_.reserve(static_cast<std::size_t>(count) + 1);
    for (int i = 0; i <= count; ++i) {
        const double t = start + sweep * i / count;
        const double c = std::cos(t);
        const double s = std::sin(t);
        points_.push_back({center.x + cosine.x * c + sine.x * s, center.y + cosine.y * c + sine.y * s});
    }
}

void Renderer::drawStroke(const State& state, const Stroke& stroke) {
    const std::span<const Point3> own = state.list->pointsOf(stroke);
    const Pen& pen = picture_.pens()[stroke.pen];
    const Look look = state.context.resolve(pen);
    points_.clear();
    switch (stroke.kind) {
        case Stroke::Kind::Arc:
            arcPoints(state.projection, own);
            break;
        case Stroke::Kind::Polyline:
            for (const Point3& point : own) addDistinct(state.projection.apply(point), points_);
            // However near, the end counts.
            points_.back() = state.projection.apply(own.back());
            if (points_.size() == 1) points_.push_back(points_.front());
            break;
        case Stroke::Kind::Ray:
        case Stroke::Kind::XLine: {
            const Point2 base = state.projection.apply(own[0]);
            const Point2 direction = state.projection.applyDirection(own[1]);
            const double size = std::hypot(direction.x, direction.y);
            if (!(size > 0)) return;
            const double reach = (std::abs(base.x) + std::abs(base.y) + clip_.width() + clip_.height() +
                                  std::abs(clip_.left) + std::abs(clip_.top)) /
                                 size;
            const double back = stroke.kind == Stroke::Kind::Ray ? 0 : reach;
            points_.push_back({base.x - direction.x * back, base.y - direction.y * back});
            points_.push_back({base.x + direction.x * reach, base.y + direction.y * reach});
            if (!clipLine(clip_.widened(4), points_[0], points_[1])) return;
            break;
        }
    }
    const double scale = state.projection.scale();
    if (stroke.startWidth != stroke.endWidth && std::max(stroke.startWidth, stroke.endWidth) * scale > 1.2) {
        setStrokeInk(look, 0);
        strokeTapered(stroke, scale);
        return;
    }
    setStrokeInk(look, std::max(stroke.startWidth, stroke.endWidth) * scale);
    strokePoints(look, pen.lineTypeScale, stroke.dashesEach);
}

/// A band that grows or shrinks: one area about its points.
void Renderer::strokeTapered(const Stroke& stroke, double scale) {
    double length = 0;
    for (std::size_t i = 1; i < points_.size(); ++i) {
        length += std::hypot(points_[i].x - points_[i - 1].x, points_[i].y - points_[i - 1].y);
    }
    if (!(length > 0)) return;
    scratch_.assign(points_.size() * 2, {});
    double along = 0;
    for (std::size_t i = 0; i < points_.size(); ++i) {
        const Point2& from = points_[i == 0 ? 0 : i - 1];
        const Point2& to = points_[std::min(i + 1, points_.size() - 1)];
        if (i > 0) along += std::hypot(points_[i].x - points_[i - 1].x, points_[i].y - points_[i - 1].y);
        const double size = std::max(std::hypot(to.x - from.x, to.y - from.y), 1e-12);
        const double width = stroke.startWidth + (stroke.endWidth - stroke.startWidth) * along / length;
        const double x = -(to.y - from.y) / size * width * scale / 2;
        const double y = (to.x - from.x) / size * width * scale / 2;
        scratch_[i] = {points_[i].x + x, points_[i].y + y};
        scratch_[scratch_.size() - 1 - i] = {points_[i].x - x, points_[i].y - y};
    }
    const std::uint32_t end = static_cast<std::uint32_t>(scratch_.size());
    canvas_.fill(scratch_, std::span(&end, 1));
}

void Renderer::drawFill(const State& state, const Fill& fill) {
    const Look look = state.context.resolve(picture_.pens()[fill.pen]);
    const bool isPattern = fill.spacing > 0;
    if (isPattern && fill.spacing * state.projection.scale() >= kFinestHatch &&
        fill.lineEnd > fill.firstLine) {
        lastCost_ += fill.lineEnd - fill.firstLine;
        for (std::uint32_t i = fill.firstLine; i < fill.lineEnd; ++i)
            drawStroke(state, state.list->strokes[i]);
        return;
    }
    const Frame safe = clip_.widened(kFarOutside);
    points_.clear();
    ends_.clear();
    std::uint32_t begin = 0;
    for (const std::uint32_t end : state.list->endsOf(fill)) {
        scratch_.clear();
        bool outside = false;
        for (std::uint32_t i = begin; i < end; ++i) {
            addDistinct(state.projection.apply(state.list->points[fill.first + i]), scratch_);
            outside = outside || !safe.contains(scratch_.back());
        }
        if (outside) clipLoop(scratch_, clip_.widened(8));
        points_.insert(points_.end(), scratch_.begin(), scratch_.end());
        ends_.push_back(static_cast<std::uint32_t>(points_.size()));
        begin = end;
    }
    setInk({look.color, 0, (isPattern ? kToneOpacity : 1) * opacity(look), false});
    if (fill.covers) {
        canvas_.cover(points_, ends_);
    } else {
        canvas_.fill(points_, ends_);
    }
}

void Renderer::drawText(const State& state, const Text& text) {
    const Transform& frame = text.piece.frame;
    const PlacedText placed{text.piece, state.projection.apply(frame.origin),
                            state.projection.applyDirection(frame.xAxis),
                            state.projection.applyDirection(frame.yAxis)};
    const Look look = state.context.resolve(picture_.pens()[text.pen]);
    setInk({look.color, 0, opacity(look)});
    const double height = std::hypot(placed.up.x, placed.up.y);
    if (height >= options_.legible) {
        canvas_.text(placed);
        return;
    }
    // Too small to be read: a line at half its height.
    const Point2 from{placed.origin.x + placed.up.x / 2, placed.origin.y + placed.up.y / 2};
    const Point2 to{from.x + placed.along.x * text.piece.width, from.y + placed.along.y * text.piece.width};
    setInk({look.color, 0, 0.5 * opacity(look)});
    canvas_.polyline(std::vector<Point2>{from, to});
}

void Renderer::drawMark(const State& state, const Mark& mark) {
    enum : int { kDot = 0, kNothing = 1, kPlus = 2, kCross = 3, kTick = 4, kCircle = 32, kSquare = 64 };
    const PointStyle& style = picture_.pointStyle();
    const Point2 at = state.projection.apply(mark.at);
    setInk({state.context.resolve(picture_.pens()[mark.pen]).color, 0});
    const int figure = style.mode & 31;
    const double percent = style.size < 0 ? -style.size : 5;
    const double size =
        style.size > 0 ? style.size * state.projection.scale() : percent / 100 * options_.frame.height();
    const double half = size / 2;
    const auto line = [&](double x1, double y1, double x2, double y2) {
        const Point2 ends[] = {{at.x + x1, at.y + y1}, {at.x + x2, at.y + y2}};
        emitPolyline(ends);
    };
    if (figure == kDot || half < 1) canvas_.dot(at);
    if (half < 1) return;
    if (figure == kPlus) {
        line(-size, 0, size, 0);
        line(0, -size, 0, size);
    } else if (figure == kCross) {
        line(-size, -size, size, size);
        line(-size, size, size, -size);
    } else if (figure == kTick) {
        line(0, 0, 0, -half);
    }
    if ((style.mode & kCircle) != 0) {
        Projection round;
        round.toX = {half, 0, 0};
        round.toY = {0, half, 0};
        round.origin = at;
        const Point3 unit[] = {{}, {1, 0, 0}, {0, 1, 0}, {0, 2 * geometry::kPi, 0}};
        arcPoints(round, unit);
        emitPolyline(points_);
    }
    if ((style.mode & kSquare) != 0) {
        line(-half, -half, half, -half);
        line(half, -half, half, half);
        line(half, half, -half, half);
        line(-half, half, -half, -half);
    }
}

}  // namespace picture
