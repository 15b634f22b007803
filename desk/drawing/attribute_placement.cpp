#include "desk/drawing/attribute_placement.h"

#include <algorithm>
#include <cmath>

namespace drawing {

namespace {

/// More slant than this no program shows.
constexpr double kMaxOblique = 85 * kPi / 180;
constexpr double kSameDirection = 1e-12;

/// A drawing may hold scale factors of 0, which no map can undo; they count as 1 here.
Placement withoutZeros(Placement placement) {
    for (double* scale : {&placement.scale.x, &placement.scale.y, &placement.scale.z}) {
        if (*scale == 0) *scale = 1;
    }
    return placement;
}

bool keepsShape(const Placement& placement) {
    return placement.scale.x == placement.scale.y && placement.scale.x > 0;
}

double fullTurnOff(double angle) {
    const double rest = std::fmod(angle, 2 * kPi);
    return rest < 0 ? rest + 2 * kPi : rest;
}

/// The plain case, a text in the block's plane under one scale factor, without rounding of what doesn't
/// change.
void placeUpright(AttribData& attribute, const Placement& placement, const Transform& map) {
    attribute.position = wcsToOcs(map.apply(attribute.position), placement.extrusion);
    attribute.alignment = wcsToOcs(map.apply(attribute.alignment), placement.extrusion);
    attribute.height *= placement.scale.x;
    if (placement.rotation != 0) attribute.rotation = fullTurnOff(attribute.rotation + placement.rotation);
    attribute.common.extrusion = placement.extrusion;
}

}  // namespace

void transformAttribute(AttribData& attribute, const Transform& map, const Vector3& extrusion,
                        bool upsideDown) {
    const Transform plane = objectToWorld(attribute.common.extrusion);
    const Vector3 along{std::cos(attribute.rotation), std::sin(attribute.rotation), 0};
    const Vector3 up = Vector3{-along.y, along.x, 0} + along * std::tan(attribute.oblique);
    const Vector3 newAlong = map.applyDirection(plane.applyDirection(along)) * attribute.widthFactor;
    const Vector3 newUp = map.applyDirection(plane.applyDirection(up));

    Vector3 normal = normalized(cross(newAlong, newUp));
    if (length(normal) == 0) normal = extrusion;
    if (dot(normal, extrusion) < 0) normal = -normal;
    if (distance(normal, extrusion) < kSameDirection) normal = extrusion;
    const Transform newPlane = objectToWorld(normal);
    const auto inPlane = [&](const Vector3& v) {
        return Vector3{dot(v, newPlane.xAxis), dot(v, newPlane.yAxis), 0};
    };
    Vector3 x = inPlane(newAlong);
    Vector3 y = inPlane(newUp);
    if (crossXY(x, y) < 0) {
        attribute.generation ^= upsideDown ? 4 : 2;
        (upsideDown ? y : x) = upsideDown ? -y : -x;
    }
    const double width = length(x);
    const Vector3 direction = width > 0 ? x / width : Vector3{1, 0, 0};
    const double height = crossXY(direction, y);
    attribute.position = wcsToOcs(map.apply(plane.apply(attribute.position)), normal);
    attribute.alignment = wcsToOcs(map.apply(plane.apply(attribute.alignment)), normal);
    attribute.common.extrusion = normal;
    attribute.rotation = fullTurnOff(std::atan2(direction.y, direction.x));
    if (height <= 0) return;  // flattened: there is no text to speak of
    attribute.height *= height;
    attribute.widthFactor = width / height;
    attribute.oblique = std::clamp(std::atan2(dot(direction, y), height), -kMaxOblique, kMaxOblique);
}

void placeAttribute(AttribData& attribute, const Placement& placement, const Transform& map) {
    if (keepsShape(placement) && attribute.common.extrusion == kZAxis) {
        placeUpright(attribute, placement, map);
    } else {
        transformAttribute(attribute, map, placement.extrusion, placement.scale.y < 0);
    }
}

void moveAttribute(AttribData& attribute, const Placement& from, const Placement& to) {
    if (from.scale == to.scale && from.rotation == to.rotation && from.extrusion == to.extrusion) {
        const Vector3 offset = ocsToWcs(to.insertion - from.insertion, to.extrusion);
        const Vector3 moved = wcsToOcs(offset, attribute.common.extrusion);
        attribute.position = attribute.position + moved;
        attribute.alignment = attribute.alignment + moved;
        return;
    }
    const Transform back = referenceTransform(withoutZeros(from), {}).inverse();
    const Transform map = referenceTransform(withoutZeros(to), {}) * back;
    transformAttribute(attribute, map, to.extrusion, from.scale.y * to.scale.y < 0);
}

}  // namespace drawing
