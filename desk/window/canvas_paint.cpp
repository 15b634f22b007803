#include "desk/window/canvas_state.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

namespace window {

using drawing::EntityId;
using picture::Point2;

namespace {

/// How strong the veil over what stepped back is: it leaves 42 %.
constexpr double kVeil = 0.58;
/// More than these aren't lit while a rectangle is drawn.
constexpr std::size_t kMostInRectangle = 4'000;
constexpr double kCrossHair = 52;
constexpr double kPickBox = 10;

}  // namespace

void CanvasState::paint(QPainter& painter) {
    if (!isShowing()) {
        painter.fillRect(canvas.rect(), tone(Token::Canvas));
        return;
    }
    painter.save();
    painter.scale(1 / ratio(), 1 / ratio());
    finished.paint(painter);
    if (veil > 0) {
        QColor ground = tone(Token::Canvas);
        ground.setAlphaF(static_cast<float>(kVeil * veil));
        painter.fillRect(QRectF(0, 0, view.width(), view.height()), ground);
    }
    paintLit(painter);
    paintPointer(painter);
    painter.restore();
    painter.setRenderHint(QPainter::Antialiasing);
    paintAxes(painter);
    paintShownRow(painter);
    paintRectangle(painter);
    paintPolygon(painter);
    paintBands(painter);
    if (hasCursor) {
        paintCross(painter);
        paintSnap(painter);
        paintPill(painter);
        paintTip(painter);
    }
    paintLegend(painter);
}

/// Selection, marks and flash: they stay while the cursor moves, so their layer is kept.
void CanvasState::paintLit(QPainter& painter) {
    const QSize size(static_cast<int>(view.width()), static_cast<int>(view.height()));
    const bool nothing = selection.empty() && marks.lit.empty() && marks.toComeAt.empty() &&
                         marks.failed.empty() && flashing.empty();
    if (nothing) {
        litLayer_ = {};
        litIsOld_ = true;
        return;
    }
    if (litIsOld_ || litLayer_.size() != size) {
        litLayer_ = QImage(size, QImage::Format_ARGB32_Premultiplied);
        litLayer_.fill(Qt::transparent);
        QPainter on(&litLayer_);
        CanvasLights light = lights();
        const QColor select = tone(Token::Select);
        std::vector<EntityId> shown;
        std::vector<EntityId> hidden;
        for (const EntityId id : marks.lit) {
            if (picture->itemOf(space, id)) {
                shown.push_back(id);
            } else if (!drawing->isErased(id) && drawing->owner(id) == space) {
                hidden.push_back(id);
            }
        }
        light.draw(on, shown, {select, {}, 2, 7, 0.3, false, false, 7});
        light.drawHidden(on, hidden, {select, {}, 1.5, 0, 0, true, false, 7});
        if (marks.toCome != drawing::kNoBlock) {
            const Light toCome{tone(Token::Preview), {}, 1.2, 0, 0, false, true, 0};
            light.drawInPlaceOf(on, marks.lit, marks.toCome, toCome);
            if (space == drawing->modelSpace()) light.drawAt(on, marks.toComeAt, marks.toCome, toCome);
        }
        light.draw(on, selection, {select, {}, 2, 7, 0.3, false, false, 9});
        on.setRenderHint(QPainter::Antialiasing);
        on.setPen(QPen(tone(Token::Error), 2 * ratio()));
        for (const geometry::Point3& point : marks.failed) {
            if (space != drawing->modelSpace()) break;
            const Point2 at = view.projection().apply(point);
            const double arm = 5 * ratio();
            on.drawLine(QPointF(at.x - arm, at.y - arm), QPointF(at.x + arm, at.y + arm));
            on.drawLine(QPointF(at.x - arm, at.y + arm), QPointF(at.x + arm, at.y - arm));
        }
        if (flashSteps % 2 == 0 && !flashing.empty()) {
            light.draw(on, flashing, {select, {}, 3, 9, 0.5, false, false, 9});
        }
        litIsOld_ = false;
    }
    painter.drawImage(QPointF(0, 0), litLayer_);
}

/// What hangs at the cursor or lies under it, and what a rectangle would take.
void CanvasState::paintPointer(QPainter& painter) {
    CanvasLights light = lights();
    if (corner && !zoomsWindow) {
        if (inRectangle.size() <= kMostInRectangle) {
            light.draw(painter, inRectangle, {tone(Token::Select), {}, 1.5, 0, 0, false, false, 0});
        }
        return;
    }
    if (!hasCursor || !picking) return;
    if (prompt.hanging != drawing::kNoBlock &&
        (prompt.asking == Asking::Point || prompt.asking == Asking::Angle)) {
        drawing::Placement placement;
        placement.insertion = prompt.asking == Asking::Angle && prompt.base ? *prompt.base : point();
        placement.scale = prompt.hangingScale;
        placement.rotation = prompt.hangingRotation;
        if (prompt.asking == Asking::Angle && prompt.base) {
            const geometry::Point3 to = point();
            placement.rotation = std::atan2(to.y - prompt.base->y, to.x - prompt.base->x);
        }
        light.drawBlock(painter, prompt.hanging, placement, prompt.hangingValues,
                        {tone(Token::Preview), {}, 1.2, 0, 0, false, true, 0});
    }
    paintHovered(painter);
}

/// It stays lit while the mouse moves on over it, so it is kept.
void CanvasState::paintHovered(QPainter& painter) {
    constexpr int kLongest = 7;  // the mouse waits for it
    const EntityId hovered = cycleList.chosen();
    if (hovered == drawing::kNoEntity) return;
    const QSize size(static_cast<int>(view.width()), static_cast<int>(view.height()));
    if (hovered != hoverOf_ || hoverLayer_.size() != size) {
        hoverLayer_ = QImage(size, QImage::Format_ARGB32_Premultiplied);
        hoverLayer_.fill(Qt::transparent);
        hoverOf_ = hovered;
        QPainter on(&hoverLayer_);
        Light light;
        light.mixWith = scheme == Scheme::Dark ? Qt::white : Qt::black;
        light.halo = 7;
        light.haloOpacity = 0.22;
        light.longest = kLongest;
        lights().draw(on, {hovered}, light);
    }
    painter.drawImage(QPointF(0, 0), hoverLayer_);
}

void CanvasState::paintAxes(QPainter& painter) {
    constexpr double kArm = 34;
    const QPointF origin(26, canvas.height() - 26);
    QPen pen(tone(Token::Text2), 1);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(origin.x() - 4, origin.y() - 4, 8, 8));
    const auto arrow = [&](const QPointF& along, const QString& name) {
        const QPointF tip = origin + along * kArm;
        const QPointF side(along.y() * 3, -along.x() * 3);
        painter.drawLine(origin + along * 4, tip);
        painter.drawLine(tip, tip - along * 6 + side);
        painter.drawLine(tip, tip - along * 6 - side);
        painter.drawText(QRectF(tip + along * 9 - QPointF(8, 8), QSizeF(16, 16)), Qt::AlignCenter, name);
    };
    arrow({1, 0}, "X");
    arrow({0, -1}, "Y");
}

void CanvasState::paintShownRow(QPainter& painter) {
    if (marks.shownRow == drawing::kNoEntity) return;
    const picture::Frame frame = lights().frameOf(marks.shownRow);
    if (frame.empty()) return;
    const QRectF box =
        QRectF(frame.left / ratio(), frame.top / ratio(), frame.width() / ratio(), frame.height() / ratio())
            .adjusted(-8, -8, 8, 8);
    const double arm = std::clamp(std::min(box.width(), box.height()) / 4, 6.0, 14.0);
    painter.setPen(QPen(tone(Token::Select), 2));
    for (const auto& [at, x, y] :
         {std::tuple(box.topLeft(), 1, 1), std::tuple(box.topRight(), -1, 1),
          std::tuple(box.bottomLeft(), 1, -1), std::tuple(box.bottomRight(), -1, -1)}) {
        painter.drawLine(at, at + QPointF(arm * x, 0));
        painter.drawLine(at, at + QPointF(0, arm * y));
    }
    if (marks.shownRowText.isEmpty()) return;
    const QFontMetricsF metrics(canvas.font());
    QRectF label(0, 0, metrics.horizontalAdvance(marks.shownRowText) + 16, metrics.height() + 8);
    label.moveTopLeft({box.right() + 8, box.top()});
    if (label.right() > canvas.width() - 4) label.moveRight(box.left() - 8);
    label.moveTop(std::clamp(label.top(), 4.0, std::max(4.0, canvas.height() - label.height() - 4)));
    painter.setPen(QPen(tone(Token::Hairline), 1));
    painter.setBrush(tone(Token::Raised));
    painter.drawRoundedRect(label, 3, 3);
    painter.setPen(tone(Token::Text));
    painter.drawText(label, Qt::AlignCenter, marks.shownRowText);
}

void CanvasState::paintRectangle(QPainter& painter) {
    if (!corner) return;
    const QPointF first = logical(*corner);
    const bool crossing = !zoomsWindow && cursor.x() < first.x();
    const QColor edge = tone(crossing ? Token::Crossing : Token::Window);
    QColor fill = edge;
    fill.setAlphaF(0.12F);
    QPen pen(edge, 1.5);
    if (crossing) pen.setDashPattern({7 / 1.5, 4 / 1.5});
    painter.setPen(pen);
    painter.setBrush(fill);
    painter.drawRect(QRectF(first, cursor).normalized());
    painter.setBrush(Qt::NoBrush);
}

/// The rubber band from a base point.
void CanvasState::paintBands(QPainter& painter) {
    const bool asksPoint = prompt.asking == Asking::Point || prompt.asking == Asking::Angle;
    if (!asksPoint || !prompt.base || !hasCursor || prompt.isPolygon || prompt.isFence) return;
    QPen pen(tone(Token::Text2), 1);
    pen.setDashPattern({6, 4});
    painter.setPen(pen);
    painter.drawLine(logical(*prompt.base), logical(point()));
}

void CanvasState::paintFence(QPainter& painter) {
    QPolygonF line;
    for (const geometry::Point3& at : prompt.corners) line.append(logical(at));
    if (hasCursor) line.append(logical(point()));
    QPen pen(tone(Token::Crossing), 1.5);
    pen.setDashPattern({7 / 1.5, 4 / 1.5});
    painter.setPen(pen);
    painter.drawPolyline(line);
}

void CanvasState::paintPolygon(QPainter& painter) {
    if (prompt.isFence) return paintFence(painter);
    if (!prompt.isPolygon || prompt.corners.empty()) return;
    QPolygonF polygon;
    for (const geometry::Point3& at : prompt.corners) polygon.append(logical(at));
    const qsizetype fixed = polygon.size();
    if (hasCursor) polygon.append(logical(point()));
    const QColor select = tone(Token::Select);
    QColor fill = select;
    fill.setAlphaF(0.12F);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    if (polygon.size() > 2) painter.drawPolygon(polygon);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(select, 2));
    painter.drawPolyline(polygon.constData(), static_cast<int>(fixed));
    QPen open(select, 1.5);
    open.setDashPattern({4, 3});
    painter.setPen(open);
    if (polygon.size() > fixed) {
        painter.drawLine(polygon[fixed - 1], polygon[fixed]);
        painter.drawLine(polygon[fixed], polygon[0]);
    }
    for (qsizetype i = 0; i < fixed; ++i) {
        painter.fillRect(QRectF(polygon[i].x() - 3.5, polygon[i].y() - 3.5, 7, 7), select);
    }
}

/// Of what hangs at the cursor, in logical pixels; empty for nothing.
QSizeF CanvasState::hangingSize() const {
    const bool asksPoint = prompt.asking == Asking::Point || prompt.asking == Asking::Angle;
    if (prompt.hanging == drawing::kNoBlock || !asksPoint) return {};
    const geometry::Box box = picture->extents(prompt.hanging);
    if (box.empty()) return {};
    const double scale = view.projection().scale() / ratio();
    return {(box.high.x - box.low.x) * scale * std::abs(prompt.hangingScale.x),
            (box.high.y - box.low.y) * scale * std::abs(prompt.hangingScale.y)};
}

void CanvasState::paintCross(QPainter& painter) {
    const bool asksPoint = prompt.asking == Asking::Point || prompt.asking == Asking::Angle;
    const bool picksEntity = prompt.asking == Asking::Entity || prompt.asking == Asking::Selection;
    QPen pen(tone(Token::Hover), 1);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(pen);
    const QPointF at = asksPoint && (snap || orthoOn) ? logical(point()) : cursor;
    if (isPanning) {
        painter.drawEllipse(cursor, 4, 4);
    } else if (!picking) {
        painter.drawLine(at - QPointF(8, 0), at + QPointF(8, 0));
        painter.drawLine(at - QPointF(0, 8), at + QPointF(0, 8));
    } else {
        const double arm = fullCross     ? canvas.width() + canvas.height()
                           : picksEntity ? kCrossHair / 2
                                         : kCrossHair;
        // The cross leaves a hanging label's box, and a pick box, free.
        double free = asksPoint ? 0 : kPickBox / 2;
        if (const QSizeF hanging = hangingSize(); !hanging.isEmpty()) {
            free = std::hypot(hanging.width(), hanging.height()) / 2;
        }
        for (const QPointF& along : {QPointF(1, 0), QPointF(-1, 0), QPointF(0, 1), QPointF(0, -1)}) {
            painter.drawLine(at + along * free, at + along * (free + arm));
        }
        if (!asksPoint && !zoomsWindow) {
            painter.drawRect(QRectF(at.x() - kPickBox / 2, at.y() - kPickBox / 2, kPickBox, kPickBox));
        }
        if (prompt.asking == Asking::Selection) {
            painter.setPen(QPen(tone(Token::Select), 1));
            const QPointF plus = at + QPointF(11, -11);
            painter.drawLine(plus - QPointF(3, 0), plus + QPointF(3, 0));
            painter.drawLine(plus - QPointF(0, 3), plus + QPointF(0, 3));
        }
    }
    painter.setRenderHint(QPainter::Antialiasing);
}

void CanvasState::paintSnap(QPainter& painter) {
    if (!snap) return;
    constexpr double kHalf = 7.5;
    const QPointF at = logical(snap->at);
    QPainterPath path;
    const auto line = [&](double x1, double y1, double x2, double y2) {
        path.moveTo(at + QPointF(x1, y1) * kHalf);
        path.lineTo(at + QPointF(x2, y2) * kHalf);
    };
    const auto closed = [&](std::initializer_list<QPointF> corners) {
        QPolygonF polygon;
        for (const QPointF& tip : corners) polygon.append(at + tip * kHalf);
        path.addPolygon(polygon);
        path.closeSubpath();
    };
    using shapes::SnapKind;
    switch (snap->kind) {
        case SnapKind::End:
            path.addRect(at.x() - kHalf, at.y() - kHalf, 2 * kHalf, 2 * kHalf);
            break;
        case SnapKind::Middle:
            closed({{0, -1}, {1, 0.8}, {-1, 0.8}});
            break;
        case SnapKind::Centre:
            path.addEllipse(at, kHalf, kHalf);
            break;
        case SnapKind::Quadrant:
            closed({{0, -1}, {1, 0}, {0, 1}, {-1, 0}});
            break;
        case SnapKind::Intersection:
            line(-0.9, -0.9, 0.9, 0.9);
            line(-0.9, 0.9, 0.9, -0.9);
            break;
        case SnapKind::Insertion:
            closed({{-1, -1}, {0.2, -1}, {0.2, -0.2}, {1, -0.2}, {1, 1}, {-0.2, 1}, {-0.2, 0.2}, {-1, 0.2}});
            break;
        case SnapKind::Perpendicular:
            line(-0.9, -1, -0.9, 0.9);
            line(-0.9, 0.9, 1, 0.9);
            line(-0.9, 0, 0, 0);
            line(0, 0, 0, 0.9);
            break;
        case SnapKind::Nearest:
            closed({{-0.9, -1}, {0.9, -1}, {-0.9, 1}, {0.9, 1}});
            break;
    }
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(tone(Token::Canvas), 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(path);
    painter.setPen(QPen(tone(Token::Snap), 2, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter.drawPath(path);
    paintSnapName(painter, at);
}

/// The kind in words, left of and below the marker, where the pill isn't.
void CanvasState::paintSnapName(QPainter& painter, const QPointF& at) {
    const QString names[] = {Canvas::tr("End"),           Canvas::tr("Middle"), Canvas::tr("Intersection"),
                             Canvas::tr("Insertion"),     Canvas::tr("Centre"), Canvas::tr("Quadrant"),
                             Canvas::tr("Perpendicular"), Canvas::tr("Nearest")};
    const QString name = names[static_cast<int>(snap->kind)];
    const QFontMetricsF metrics(canvas.font());
    QRectF chip(0, 0, metrics.horizontalAdvance(name) + 16, metrics.height() + 8);
    chip.moveTopRight(at + QPointF(-14, 12));
    if (chip.left() < 4 || chip.bottom() > canvas.height() - 4) return;
    painter.setPen(QPen(tone(Token::Hairline), 1));
    painter.setBrush(tone(Token::Raised));
    painter.drawRoundedRect(chip, 3, 3);
    painter.setPen(tone(Token::Snap));
    painter.drawText(chip, Qt::AlignCenter, name);
}

}  // namespace window
