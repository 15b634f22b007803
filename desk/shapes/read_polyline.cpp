#include "desk/shapes/read_polyline.h"

#include "desk/shapes/read_tags.h"

#include <algorithm>
#include <cstdlib>

namespace shapes {

namespace {

/// Group 70 of a POLYLINE.
enum PolylineFlag : int {
    kClosed = 1,
    kSplineFit = 4,
    kThreeD = 8,
    kPolygonMesh = 16,
    kClosedAcross = 32,
    kPolyface = 64,
};
/// Group 70 of a VERTEX.
enum VertexFlag : int {
    kFrame = 16,  ///< control point of a fitted spline, not on it
    kMeshVertex = 64,
    kPolyfaceVertex = 128,
};

/// Groups 71 to 74 of a face: numbers of its vertices from 1, negative where the edge that follows is hidden.
struct Face {
    int corner[4] = {0, 0, 0, 0};
};

struct Head {
    int flags = 0;
    int columns = 0;  ///< N of a mesh
    int rows = 0;     ///< M of a mesh
    double elevation = 0;
    double startWidth = 0;
    double endWidth = 0;
    Vector3 extrusion = kZAxis;
};

Head readHead(dxf::TagReader tags) {
    Head head;
    int fittedRows = 0;
    int fittedColumns = 0;
    forEachTag(tags, [&](const dxf::Tag& tag) {
        if (takePoint(tag, 210, head.extrusion)) return;
        switch (tag.code) {
            case 30:
                head.elevation = tag.numberOr(0);
                break;
            case 40:
                head.startWidth = tag.numberOr(0);
                break;
            case 41:
                head.endWidth = tag.numberOr(0);
                break;
            case 70:
                head.flags = static_cast<int>(tag.integerOr(0));
                break;
            case 71:
                head.rows = static_cast<int>(tag.integerOr(0));
                break;
            case 72:
                head.columns = static_cast<int>(tag.integerOr(0));
                break;
            case 73:
                fittedRows = static_cast<int>(tag.integerOr(0));
                break;
            case 74:
                fittedColumns = static_cast<int>(tag.integerOr(0));
                break;
            default:
                break;
        }
    });
    if ((head.flags & kSplineFit) != 0 && fittedRows > 0 && fittedColumns > 0) {
        head.rows = fittedRows;
        head.columns = fittedColumns;
    }
    return head;
}

/// Builds path and widths of a plane polyline.
void buildPlanePath(Polyline& polyline, const Transform& axes) {
    const std::vector<PolylineVertex>& vertices = polyline.vertices;
    if (vertices.size() < 2) return;
    const std::size_t stretches = vertices.size() - (polyline.closed ? 0 : 1);
    const bool inWorld = axes.zAxis == kZAxis;
    bool wide = false;
    polyline.path.reserve(stretches);
    for (std::size_t i = 0; i < stretches; ++i) {
        const PolylineVertex& from = vertices[i];
        const PolylineVertex& to = vertices[(i + 1) % vertices.size()];
        const Curve curve = bulgeCurve(from.point, to.point, from.bulge);
        polyline.path.push_back(inWorld ? curve : transformed(curve, axes));
        polyline.widths.emplace_back(from.startWidth, from.endWidth);
        wide = wide || from.startWidth > 0 || from.endWidth > 0;
    }
    if (!wide) polyline.widths.clear();
}

void buildSpacePath(Polyline& polyline) {
    const std::vector<PolylineVertex>& vertices = polyline.vertices;
    if (vertices.size() < 2) return;
    for (std::size_t i = 1; i < vertices.size(); ++i) {
        polyline.path.push_back(LineCurve{vertices[i - 1].point, vertices[i].point});
    }
    if (polyline.closed) polyline.path.push_back(LineCurve{vertices.back().point, vertices.front().point});
}

/// A mesh has its vertices row by row.
void buildMesh(Polyline& polyline, const Head& head) {
    const std::vector<PolylineVertex>& vertices = polyline.vertices;
    if (head.rows < 1 || head.columns < 1) return;
    const auto rows = static_cast<std::size_t>(head.rows);
    const auto columns = static_cast<std::size_t>(head.columns);
    if (vertices.size() / columns < rows) return;
    const auto connect = [&](std::size_t a, std::size_t b) {
        polyline.path.push_back(LineCurve{vertices[a].point, vertices[b].point});
    };
    for (std::size_t row = 0; row < rows; ++row) {
        for (std::size_t column = 0; column < columns; ++column) {
            const std::size_t at = row * columns + column;
            if (column + 1 < columns) {
                connect(at, at + 1);
            } else if ((head.flags & kClosedAcross) != 0) {
                connect(at, row * columns);
            }
            if (row + 1 < rows) {
                connect(at, at + columns);
            } else if ((head.flags & kClosed) != 0) {
                connect(at, column);
            }
        }
    }
}

void buildFaces(Polyline& polyline, const std::vector<Face>& faces) {
    const auto count = static_cast<int>(polyline.vertices.size());
    for (const Face& face : faces) {
        int corners = 4;
        while (corners > 0 && face.corner[corners - 1] == 0) --corners;
        for (int i = 0; i < corners; ++i) {
            const int from = face.corner[i];
            const int to = std::abs(face.corner[(i + 1) % corners]);
            if (from < 1 || from > count || to < 1 || to > count) continue;
            polyline.path.push_back(
                LineCurve{polyline.vertices[from - 1].point, polyline.vertices[to - 1].point});
        }
    }
}

Polyline::Kind kindOf(int flags) {
    if ((flags & kPolyface) != 0) return Polyline::Kind::kFaces;
    if ((flags & kPolygonMesh) != 0) return Polyline::Kind::kMesh;
    return (flags & kThreeD) != 0 ? Polyline::Kind::kSpace : Polyline::Kind::kPlane;
}

/// Groups 40, 41 and 42, which a vertex has in either kind of polyline. Returns whether the group is one of
/// them.
bool takeWidthOrBulge(const dxf::Tag& tag, PolylineVertex& vertex) {
    if (tag.code < 40 || tag.code > 42) return false;
    double& value = tag.code == 40 ? vertex.startWidth : tag.code == 41 ? vertex.endWidth : vertex.bulge;
    value = tag.numberOr(0);
    return true;
}

/// Reads one VERTEX: to `vertices` or, where it is a face of a polyface mesh, to `faces`.
void readVertex(dxf::TagReader tags, const Head& head, std::vector<PolylineVertex>& vertices,
                std::vector<Face>& faces) {
    PolylineVertex vertex{{}, 0, head.startWidth, head.endWidth};
    Face face;
    int flags = 0;
    bool isVertex = false;
    forEachTag(tags, [&](const dxf::Tag& tag) {
        if (takePoint(tag, 10, vertex.point) || takeWidthOrBulge(tag, vertex)) return;
        switch (tag.code) {
            case 0:
                isVertex = tag.raw == "VERTEX";
                break;
            case 70:
                flags = static_cast<int>(tag.integerOr(0));
                break;
            case 71:
            case 72:
            case 73:
            case 74:
                face.corner[tag.code - 71] = static_cast<int>(tag.integerOr(0));
                break;
            default:
                break;
        }
    });
    if (!isVertex) return;
    if ((flags & kPolyfaceVertex) != 0 && (flags & kMeshVertex) == 0) {
        faces.push_back(face);
    } else if ((flags & kFrame) == 0 || (head.flags & kSplineFit) == 0) {
        vertices.push_back(vertex);
    }
}

}  // namespace

Polyline readLwPolyline(dxf::TagReader tags) {
    Polyline result;
    Vector3 extrusion = kZAxis;
    double elevation = 0;
    double constantWidth = 0;
    forEachTag(tags, [&](const dxf::Tag& tag) {
        if (tag.code == 10) result.vertices.push_back({{}, 0, constantWidth, constantWidth});
        if (takePoint(tag, 210, extrusion)) return;
        switch (tag.code) {
            case 38:
                elevation = tag.numberOr(0);
                return;
            case 43:
                constantWidth = tag.numberOr(0);
                return;
            case 70:
                result.closed = (tag.integerOr(0) & kClosed) != 0;
                return;
            default:
                break;
        }
        if (result.vertices.empty()) return;
        PolylineVertex& vertex = result.vertices.back();
        if (takeWidthOrBulge(tag, vertex)) return;
        switch (tag.code) {
            case 10:
                vertex.point.x = tag.numberOr(0);
                break;
            case 20:
                vertex.point.y = tag.numberOr(0);
                break;
            default:
                break;
        }
    });
    for (PolylineVertex& vertex : result.vertices) vertex.point.z = elevation;
    buildPlanePath(result, objectToWorld(extrusion));
    return result;
}

Polyline readPolyline(dxf::TagReader head, const std::vector<dxf::TagReader>& vertices) {
    const Head data = readHead(head);
    Polyline result;
    result.kind = kindOf(data.flags);
    result.closed = (data.flags & kClosed) != 0;
    std::vector<Face> faces;
    result.vertices.reserve(vertices.size());
    for (const dxf::TagReader& vertex : vertices) readVertex(vertex, data, result.vertices, faces);
    switch (result.kind) {
        case Polyline::Kind::kPlane:
            for (PolylineVertex& vertex : result.vertices) vertex.point.z = data.elevation;
            buildPlanePath(result, objectToWorld(data.extrusion));
            break;
        case Polyline::Kind::kSpace:
            buildSpacePath(result);
            break;
        case Polyline::Kind::kMesh:
            buildMesh(result, data);
            break;
        case Polyline::Kind::kFaces:
            buildFaces(result, faces);
            break;
    }
    return result;
}

bool runsThroughVertices(const Drawing& drawing, EntityId id) {
    constexpr std::int64_t kRunsThrough = 128;
    const std::string_view type = drawing.type(id);
    if (type != "LWPOLYLINE" && type != "POLYLINE") return false;
    bool result = false;
    forEachTag(drawing.tags(id), [&](const dxf::Tag& tag) {
        if (tag.code == 70) result = (tag.integerOr(0) & kRunsThrough) != 0;
    });
    return result;
}

Polyline::Kind polylineKind(dxf::TagReader head) { return kindOf(readHead(head).flags); }

}  // namespace shapes
