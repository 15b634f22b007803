#include "desk/drawing/placement.h"

namespace drawing {

Transform referenceTransform(const Placement& placement, const Point3& basePoint, int column, int row) {
    const Transform turn = Transform::rotationZ(placement.rotation);
    Transform result = turn;
    result.xAxis = turn.xAxis * placement.scale.x;
    result.yAxis = turn.yAxis * placement.scale.y;
    result.zAxis = turn.zAxis * placement.scale.z;
    const Vector3 offset{column * placement.columnSpacing, row * placement.rowSpacing, 0};
    result.origin = placement.insertion + turn.applyDirection(offset) - result.applyDirection(basePoint);
    if (placement.extrusion == kZAxis) return result;
    return objectToWorld(placement.extrusion) * result;
}

}  // namespace drawing
