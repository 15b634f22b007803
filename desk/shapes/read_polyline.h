#pragma once

#include "desk/dxf/tag_reader.h"
#include "desk/shapes/names.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace shapes {

/// A vertex of a plane polyline in object coordinates; the widths and the bulge are those of the stretch that
/// begins here.
struct PolylineVertex {
    Point3 point;
    double bulge = 0;       ///< group 42
    double startWidth = 0;  ///< group 40
    double endWidth = 0;    ///< group 41
};

/// What a LWPOLYLINE or a POLYLINE draws.
struct Polyline {
    enum class Kind : std::uint8_t {
        kPlane,  ///< LWPOLYLINE, 2D POLYLINE
        kSpace,  ///< 3D POLYLINE
        kMesh,   ///< polygon mesh
        kFaces,  ///< polyface mesh
    };
    Kind kind = Kind::kPlane;
    bool closed = false;
    std::vector<PolylineVertex> vertices;
    /// One curve a stretch, in world coordinates, the closing one included. Of meshes the edges, in no order.
    Path path;
    /// Widths at start and end of the stretch at the same place of `path`; empty where all are 0.
    std::vector<std::pair<double, double>> widths;
};

Polyline readLwPolyline(dxf::TagReader tags);
/// `head` is the POLYLINE, `vertices` its VERTEX entities in order (a SEQEND among them is passed over).
Polyline readPolyline(dxf::TagReader head, const std::vector<dxf::TagReader>& vertices);
/// Whether a linetype runs through all stretches of a LWPOLYLINE or POLYLINE as through one (group 70, 128).
bool runsThroughVertices(const Drawing& drawing, EntityId id);
/// Only the kind of a POLYLINE, from its flags.
Polyline::Kind polylineKind(dxf::TagReader head);

}  // namespace shapes
