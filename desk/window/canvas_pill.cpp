// What is written at the cursor: the prompt with coordinates or measures, and the tip of what lies there.

#include "desk/window/canvas_state.h"
#include "faces/qt/qt_text.h"

#include <QFontDatabase>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace window {

using drawing::EntityId;

namespace {

constexpr qsizetype kLongestPrompt = 48;
constexpr double kRight = 16;
constexpr double kBelow = 12;
constexpr double kGap = 6;

QString shortened(const QString& text) {
    return text.size() > kLongestPrompt ? text.left(kLongestPrompt - 1) + QString::fromUtf8("…") : text;
}

QString number(double value) { return QString::number(value, 'f', 4); }

/// One box of the pill.
struct Chip {
    QString text;
    bool isField = false;   ///< of coordinates, in the fixed font
    bool isActive = false;  ///< takes what is typed
    QString strong{};       ///< in front of the text, in the accent's colour
    double width = 0;
};

}  // namespace

/// Length so far, circumference and area of the polygon with the cursor as its last corner.
QString CanvasState::measures() const {
    std::vector<geometry::Point3> corners = prompt.corners;
    corners.push_back(point());
    double along = 0;
    double twice = 0;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const geometry::Point3& next = corners[(i + 1) % corners.size()];
        if (i + 1 < corners.size()) along += geometry::distanceXY(corners[i], next);
        twice += geometry::crossXY(corners[i], next);
    }
    const double round = along + geometry::distanceXY(corners.back(), corners.front());
    return Canvas::tr("along %1  round %2  area %3")
        .arg(along, 0, 'f', 2)
        .arg(round, 0, 'f', 2)
        .arg(std::abs(twice) / 2, 0, 'f', 2);
}

void CanvasState::paintPill(QPainter& painter) {
    pill_ = {};
    if (!picking || isPanning) return;
    const bool asksPoint = prompt.asking == Asking::Point || prompt.asking == Asking::Angle;
    std::vector<std::vector<Chip>> rows(1);
    if (zoomsWindow) {
        rows[0].push_back({corner ? Canvas::tr("Other corner") : Canvas::tr("First corner of the window")});
    } else if (!prompt.text.isEmpty()) {
        rows[0].push_back({shortened(prompt.text)});
    }
    if (corner && !zoomsWindow) {
        const auto count = [&](EntityId id) {
            return drawing->type(id) == "INSERT" && drawing->referencedBlock(id) == prompt.job;
        };
        Chip chip{Canvas::tr("%n found", nullptr, static_cast<int>(inRectangle.size()))};
        if (prompt.job != drawing::kNoBlock) {
            const auto own = std::count_if(inRectangle.begin(), inRectangle.end(), count);
            chip.strong = QString::number(own);
            chip.text = Canvas::tr("%1 in %n found", nullptr, static_cast<int>(inRectangle.size()))
                            .arg(qt_face::toShown(drawing->blocks()[prompt.job].name));
        }
        rows[0].push_back(chip);
    } else if (asksPoint && prompt.isPolygon && !prompt.corners.empty()) {
        rows.emplace_back();
        const double last = geometry::distanceXY(prompt.corners.back(), point());
        rows[1].push_back({typed.isEmpty() ? number(last) : typed, true, true});
        rows[1].push_back({measures()});
    } else if (asksPoint && prompt.asking == Asking::Angle && prompt.base) {
        const geometry::Point3 to = point();
        double degrees = std::atan2(to.y - prompt.base->y, to.x - prompt.base->x) * 180 / geometry::kPi;
        if (degrees < 0) degrees += 360;
        const QString angle = QString::number(degrees, 'f', 2) + QString::fromUtf8("°");
        rows[0].push_back({typed.isEmpty() ? angle : typed, true, true});
    } else if (asksPoint) {
        // What is typed stands where it will count: before the comma in the first field, behind it in the
        // second.
        const geometry::Point3 at = point();
        const qsizetype comma = typed.indexOf(',');
        const bool inSecond = comma >= 0;
        rows[0].push_back({typed.isEmpty() ? number(at.x)
                           : inSecond      ? typed.left(comma)
                                           : typed,
                           true, !inSecond});
        rows[0].push_back({inSecond ? typed.mid(comma + 1) : number(at.y), true, inSecond});
    } else if (!typed.isEmpty()) {
        rows[0].push_back({shortened(typed), true, true});
    }
    const QFont text = canvas.font();
    QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    fixed.setPixelSize(QFontInfo(text).pixelSize());
    const double height = QFontMetricsF(text).height() + 8;
    double width = 0;
    double total = 0;
    for (auto& row : rows) {
        double rowWidth = 0;
        for (Chip& chip : row) {
            chip.width = QFontMetricsF(chip.isField ? fixed : text).horizontalAdvance(chip.text) + 16;
            if (!chip.strong.isEmpty()) chip.width += QFontMetricsF(text).horizontalAdvance(chip.strong) + 6;
            rowWidth += chip.width + kGap;
        }
        if (row.empty()) continue;
        width = std::max(width, rowWidth - kGap);
        total += height + kGap;
    }
    if (width <= 0) return;
    total -= kGap;
    // Right of and below the cursor; at an edge, or over what is lit, on another side.
    QRectF lit;
    if (const EntityId hovered = cycleList.chosen(); hovered != drawing::kNoEntity) {
        const picture::Frame frame = lights().frameOf(hovered);
        if (frame.width() < view.width() / 2 && frame.height() < view.height() / 2) {
            lit = QRectF(frame.left / ratio(), frame.top / ratio(), frame.width() / ratio(),
                         frame.height() / ratio());
        }
    }
    const QRectF all = QRectF(canvas.rect()).adjusted(4, 4, -4, -4);
    const QSizeF size(width, total);
    // A label that hangs at the cursor stays free, unless it fills the view.
    const double hanging = hangingSize().height() / 2 + kGap;
    const double below = hanging < all.height() / 4 ? std::max(kBelow, hanging) : kBelow;
    const QPointF places[] = {{cursor.x() + kRight, cursor.y() + below},
                              {cursor.x() + kRight, cursor.y() - below - total},
                              {cursor.x() - kRight - width, cursor.y() + below},
                              {cursor.x() - kRight - width, cursor.y() - below - total}};
    QRectF box(places[0], size);
    bool found = false;
    for (const bool overLit : {false, true}) {
        for (const QPointF& place : places) {
            const QRectF candidate(place, size);
            if (found || !all.contains(candidate) || (!overLit && candidate.intersects(lit))) continue;
            box = candidate;
            found = true;
        }
    }
    if (!found)
        box.moveTopLeft({std::clamp(box.left(), 4.0, std::max(4.0, all.right() - width)),
                         std::clamp(box.top(), 4.0, std::max(4.0, all.bottom() - total))});
    pill_ = box;
    double y = box.top();
    for (const auto& row : rows) {
        double x = box.left();
        for (const Chip& chip : row) {
            const QRectF place(x, y, chip.width, height);
            painter.setPen(chip.isActive  ? QPen(tone(Token::Accent), 2)
                           : chip.isField ? QPen(tone(Token::Border), 1)
                                          : QPen(tone(Token::Hairline), 1));
            painter.setBrush(tone(chip.isField ? Token::Field : Token::Raised));
            painter.drawRoundedRect(chip.isField ? place.adjusted(1, 1, -1, -1) : place, 3, 3);
            QRectF inner = place.adjusted(8, 0, -8, 0);
            if (!chip.strong.isEmpty()) {
                QFont bold = text;
                bold.setBold(true);
                painter.setFont(bold);
                painter.setPen(tone(Token::Accent));
                painter.drawText(inner, Qt::AlignVCenter | Qt::AlignLeft, chip.strong);
                inner.setLeft(inner.left() + QFontMetricsF(bold).horizontalAdvance(chip.strong) + 6);
            }
            painter.setFont(chip.isField ? fixed : text);
            painter.setPen(tone(Token::Text));
            painter.drawText(inner, Qt::AlignVCenter | Qt::AlignLeft, chip.text);
            x += chip.width + kGap;
        }
        if (!row.empty()) y += height + kGap;
    }
    painter.setFont(text);
}

/// "PORTE_80\ton PORTES", then tags with values, at last how many lie here; a tab parts columns.
QStringList CanvasState::tipLines() const {
    constexpr int kMostAttributes = 4;
    const EntityId id = cycleList.chosen();
    const QString layer = qt_face::toShown(drawing->layerName(id));
    const bool isReference = drawing->type(id) == "INSERT";
    const std::string name = isReference ? drawing->name(id) : std::string(drawing->type(id));
    QStringList lines{qt_face::toShown(name) + '\t' + Canvas::tr("on %1").arg(layer)};
    int count = 0;
    for (const EntityId attribute : drawing->attributes(id)) {
        if (++count > kMostAttributes) break;
        const QString value = qt_face::toShown(drawing->attributeText(attribute));
        lines << qt_face::toShown(drawing->attributeTag(attribute)) + '\t' +
                     (value.isEmpty() ? QString::fromUtf8("—") : value);
    }
    if (cycleList.count() > 1) {
        const EntityId next = cycleList.following();
        const bool nextIsReference = drawing->type(next) == "INSERT";
        const std::string nextName = nextIsReference ? drawing->name(next) : std::string(drawing->type(next));
        lines << Canvas::tr("%1 of %2 here, Tab shows %3")
                     .arg(cycleList.place() + 1)
                     .arg(cycleList.count())
                     .arg(qt_face::toShown(nextName));
    }
    return lines;
}

void CanvasState::paintTip(QPainter& painter) {
    if (!showsTip || cycleList.chosen() == drawing::kNoEntity || corner) return;
    const QStringList lines = tipLines();
    const QFont text = canvas.font();
    QFont bold = text;
    bold.setBold(true);
    const QFontMetricsF metrics(text);
    double first = 0;
    double second = 0;
    double whole = 0;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QStringList columns = lines[i].split('\t');
        const double width = QFontMetricsF(i == 0 ? bold : text).horizontalAdvance(columns[0]);
        if (columns.size() == 1) {
            whole = std::max(whole, width);
        } else {
            first = std::max(first, width);
            second = std::max(second, metrics.horizontalAdvance(columns[1]));
        }
    }
    const double line = metrics.height() + 2;
    const QSizeF size(std::max(whole, first + 12 + second) + 20,
                      line * static_cast<double>(lines.size()) + 14);
    const QRectF all = QRectF(canvas.rect()).adjusted(4, 4, -4, -4);
    QRectF box(cursor + QPointF(kRight + 8, kBelow + 8), size);
    if (pill_.isValid() && box.intersects(pill_)) box.moveTop(pill_.bottom() + kGap);
    if (box.right() > all.right()) box.moveRight(cursor.x() - kRight);
    if (box.bottom() > all.bottom()) {
        box.moveBottom((pill_.isValid() ? std::min(pill_.top(), cursor.y()) : cursor.y()) - kBelow);
    }
    QColor shadow(0, 0, 0, 60);
    painter.setPen(Qt::NoPen);
    painter.setBrush(shadow);
    painter.drawRoundedRect(box.translated(0, 2), 4, 4);
    painter.setPen(QPen(tone(Token::Hairline), 1));
    painter.setBrush(tone(Token::Raised));
    painter.drawRoundedRect(box, 4, 4);
    double y = box.top() + 7;
    for (qsizetype i = 0; i < lines.size(); ++i, y += line) {
        const QStringList columns = lines[i].split('\t');
        const QRectF place(box.left() + 10, y, box.width() - 20, line);
        painter.setFont(i == 0 ? bold : text);
        painter.setPen(tone(i == 0 ? Token::Text : Token::Text2));
        painter.drawText(place, Qt::AlignVCenter | Qt::AlignLeft, columns[0]);
        if (columns.size() < 2) continue;
        painter.setFont(text);
        painter.setPen(tone(i == 0 ? Token::Text2 : Token::Text));
        painter.drawText(place.adjusted(first + 12, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft, columns[1]);
    }
    painter.setFont(text);
}

void CanvasState::paintLegend(QPainter& painter) {
    if (marks.legend.isEmpty() && marks.legendToCome.isEmpty()) return;
    const QFontMetricsF metrics(canvas.font());
    constexpr double kSample = 22;
    constexpr double kPad = 12;
    double width = kPad;
    for (const QString& text : {marks.legend, marks.legendToCome}) {
        if (!text.isEmpty()) width += kSample + 8 + metrics.horizontalAdvance(text) + kPad;
    }
    const double height = metrics.height() + 14;
    const QRectF box(canvas.width() - width - 14, canvas.height() - height - 14, width, height);
    painter.setPen(QPen(tone(Token::Hairline), 1));
    painter.setBrush(tone(Token::Raised));
    painter.drawRoundedRect(box, 4, 4);
    double x = box.left() + kPad;
    const auto entry = [&](const QString& text, Token token, bool dashed) {
        if (text.isEmpty()) return;
        QPen pen(tone(token), 2);
        if (dashed) pen.setDashPattern({2.5, 1.5});
        painter.setPen(pen);
        painter.drawLine(QPointF(x, box.center().y()), QPointF(x + kSample, box.center().y()));
        x += kSample + 8;
        const double advance = metrics.horizontalAdvance(text);
        painter.setPen(tone(Token::Text));
        painter.drawText(QRectF(x, box.top(), advance + 2, height), Qt::AlignVCenter | Qt::AlignLeft, text);
        x += advance + kPad;
    };
    entry(marks.legend, Token::Select, false);
    entry(marks.legendToCome, Token::Preview, true);
}

}  // namespace window
