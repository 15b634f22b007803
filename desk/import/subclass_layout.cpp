#include "desk/import/subclass_layout.h"

#include "desk/drawing/class_names.h"

#include <algorithm>
#include <iterator>

namespace importing {

namespace {

constexpr std::string_view kTypesOfR12[] = {"3DFACE", "ARC",  "ATTDEF", "ATTRIB",   "CIRCLE", "DIMENSION",
                                            "INSERT", "LINE", "POINT",  "POLYLINE", "SEQEND", "SHAPE",
                                            "SOLID",  "TEXT", "TRACE",  "VERTEX"};

std::vector<std::string_view> vertexMarkers(int flags) {
    constexpr int kSpace = 32;      // of a 3D polyline
    constexpr int kMesh = 64;       // of a polygon mesh, with the next one of a polyface mesh
    constexpr int kPolyFace = 128;  // alone: a face, no place in space
    if ((flags & kPolyFace) != 0 && (flags & kMesh) == 0) return {"AcDbFaceRecord"};
    if ((flags & kPolyFace) != 0) return {"AcDbVertex", "AcDbPolyFaceMeshVertex"};
    if ((flags & kMesh) != 0) return {"AcDbVertex", "AcDbPolygonMeshVertex"};
    if ((flags & kSpace) != 0) return {"AcDbVertex", "AcDb3dPolylineVertex"};
    return {"AcDbVertex", "AcDb2dVertex"};
}

std::vector<std::string_view> dimensionMarkers(int kind) {
    switch (kind & 7) {
        case 0:
            return {"AcDbDimension", "AcDbAlignedDimension", "AcDbRotatedDimension"};
        case 1:
            return {"AcDbDimension", "AcDbAlignedDimension"};
        default:
            return {"AcDbDimension", drawing::dimensionClass(kind)};
    }
}

}  // namespace

bool isKnownToR12(std::string_view type) {
    return std::find(std::begin(kTypesOfR12), std::end(kTypesOfR12), type) != std::end(kTypesOfR12);
}

std::vector<std::string_view> markersFor(std::string_view type, int flags) {
    if (!isKnownToR12(type) || type == "SEQEND") return {};
    if (type == "POLYLINE") return {drawing::polylineClass(flags)};
    if (type == "VERTEX") return vertexMarkers(flags);
    if (type == "DIMENSION") return dimensionMarkers(flags);
    // The vertical alignment of a text stands behind a second marker of the same name.
    if (type == "TEXT") return {"AcDbText", "AcDbText"};
    std::vector<std::string_view> markers;
    for (std::string_view marker : drawing::entityClass(type)->markers) {
        if (!marker.empty()) markers.push_back(marker);
    }
    return markers;
}

std::size_t markerOfGroup(std::string_view type, int flags, int code) {
    if (type == "VERTEX") return markersFor(type, flags).size() - 1;
    if (type == "ARC") return code == 50 || code == 51 ? 1 : 0;
    if (type == "TEXT") return code == 73 ? 1 : 0;
    if (type == "ATTDEF" || type == "ATTRIB") {
        return code == 2 || code == 3 || code == 70 || code == 73 || code == 74 ? 1 : 0;
    }
    if (type == "DIMENSION") {
        const int inPoint = code % 10;
        const bool isPoint = code >= 10 && code < 40;
        return (isPoint && inPoint >= 2) || code == 40 || code == 50 || code == 52 ? 1 : 0;
    }
    return 0;
}

}  // namespace importing
