#include "desk/shapes/measure.h"

#include "basic/error.h"
#include "basic/text.h"
#include "desk/drawing/drawing.h"
#include "desk/geometry/measure.h"
#include "desk/geometry/spline.h"
#include "desk/shapes/geometry.h"
#include "desk/shapes/read_curves.h"
#include "desk/shapes/read_hatch.h"
#include "desk/shapes/read_polyline.h"

#include <array>
#include <string>
#include <utility>

namespace shapes {

using geometry::pathArea;

namespace {

Polyline polylineOf(const Drawing& drawing, EntityId id) {
    if (drawing.type(id) == "LWPOLYLINE") return readLwPolyline(drawing.tags(id));
    return readPolyline(drawing.tags(id), vertexTags(drawing, id));
}

double splineArea(const Drawing& drawing, EntityId id) {
    const std::optional<SplineCurve> spline = readSpline(drawing.tags(id));
    if (!spline) return 0;
    if (!isPlanar(spline->points)) raise(kNotApplicable, "the spline doesn't lie in a plane");
    return pathArea({*spline});
}

double area(const Drawing& drawing, EntityId id) {
    const std::string_view type = drawing.type(id);
    if (type == "CIRCLE" || type == "ARC") return pathArea({readArc(drawing.tags(id), type == "CIRCLE")});
    if (type == "ELLIPSE") return pathArea({readEllipse(drawing.tags(id))});
    if (type == "SPLINE") return splineArea(drawing, id);
    if (type == "HATCH") return readHatch(drawing.tags(id)).area();
    return pathArea(polylineOf(drawing, id).path);
}

}  // namespace

bool hasMeasure(const Drawing& drawing, EntityId id, Measure what) {
    const std::string_view type = drawing.type(id);
    const auto isOneOf = [&](auto... names) { return ((type == names) || ...); };
    switch (what) {
        case Measure::Length:
            if (type == "POLYLINE") {
                const Polyline::Kind kind = polylineKind(drawing.tags(id));
                return kind == Polyline::Kind::kPlane || kind == Polyline::Kind::kSpace;
            }
            return isOneOf("LINE", "LWPOLYLINE");
        case Measure::Area:
            if (type == "POLYLINE") return polylineKind(drawing.tags(id)) == Polyline::Kind::kPlane;
            return isOneOf("LWPOLYLINE", "CIRCLE", "ARC", "ELLIPSE", "SPLINE", "HATCH", "REGION");
        case Measure::Circumference:
            return type == "CIRCLE";
        case Measure::Perimeter:
            return type == "REGION";
    }
    return false;
}

double measure(const Drawing& drawing, EntityId id, Measure what) {
    drawing.requireAlive(id);
    if (!hasMeasure(drawing, id, what)) throw basic::Error(basic::kNoSuchMember);
    const std::string_view type = drawing.type(id);
    if (type == "REGION") raise(kNotApplicable, "the region's modeller data can't be read");
    switch (what) {
        case Measure::Length:
            if (type == "LINE") return curveLength(readLine(drawing.tags(id)));
            return pathLength(polylineOf(drawing, id).path);
        case Measure::Area:
            return area(drawing, id);
        case Measure::Circumference:
            return curveLength(readArc(drawing.tags(id), true));
        case Measure::Perimeter:
            break;
    }
    return 0;
}

}  // namespace shapes
