#include "desk/picture/viewports.h"

#include "desk/geometry/angles.h"
#include "desk/shapes/read_tags.h"

#include <cstdint>
#include <string>

namespace picture {

namespace {

using shapes::takePoint;

/// What a viewport looks at.
struct View {
    Point3 center;  ///< in display coordinates
    Point3 target;
    Vector3 direction = geometry::kZAxis;
    double height = 0;
    double twist = 0;
};

/// R12 keeps the view in extended data of ACAD behind the text "MVIEW": target and direction as points, then
/// numbers: twist, height, centre.
void takeExtended(const dxf::Tag& tag, int& points, int& numbers, View& view) {
    if (tag.code == 1010) ++points;
    Point3* const point = points == 1 ? &view.target : points == 2 ? &view.direction : nullptr;
    if (point != nullptr && takePoint(tag, 1010, *point)) return;
    if (tag.code != 1040) return;
    const double value = tag.numberOr(0);
    switch (numbers++) {
        case 0:
            view.twist = value;  // degrees, as in group 51
            break;
        case 1:
            view.height = value;
            break;
        case 2:
            view.center.x = value;
            break;
        case 3:
            view.center.y = value;
            break;
        default:
            break;
    }
}

Transform modelToPaper(const View& view, const Viewport& viewport) {
    Transform axes = geometry::objectToWorld(normalized(view.direction));
    axes.origin = view.target;
    const double scale = viewport.height / view.height;
    const Transform turn = Transform::rotationZ(geometry::radiansOf(view.twist));
    const Vector3 shift = viewport.center - view.center * scale;
    return Transform::translation({shift.x, shift.y, 0}) * Transform::scaling(scale, scale, scale) * turn *
           axes.inverse();
}

}  // namespace

std::optional<Viewport> readViewport(dxf::TagReader tags) {
    constexpr std::int64_t kOff = 0x20000;
    Viewport viewport;
    View view;
    std::int64_t status = 1;
    std::int64_t number = 2;
    bool isView = false;
    int points = 0;
    int numbers = 0;
    dxf::Tag tag;
    while (tags.next(tag)) {
        if (tag.code >= 1000) {
            isView = isView || (tag.code == 1000 && tag.raw == "MVIEW");
            if (isView) takeExtended(tag, points, numbers, view);
            continue;
        }
        if (takePoint(tag, 10, viewport.center) || takePoint(tag, 17, view.target)) continue;
        if (takePoint(tag, 16, view.direction)) continue;
        if (tag.code == 12) view.center.x = tag.numberOr(0);
        if (tag.code == 22) view.center.y = tag.numberOr(0);
        if (tag.code == 40) viewport.width = tag.numberOr(0);
        if (tag.code == 41) viewport.height = tag.numberOr(0);
        if (tag.code == 45) view.height = tag.numberOr(0);
        if (tag.code == 51) view.twist = tag.numberOr(0);
        if (tag.code == 68) status = tag.integerOr(1);
        if (tag.code == 69) number = tag.integerOr(2);
        if (tag.code == 90 && (tag.integerOr(0) & kOff) != 0) status = 0;
        if (tag.code == 331) viewport.frozen.push_back(tag.handle());
    }
    if (number == 1 || status == 0) return std::nullopt;
    if (!(view.height > 0 && viewport.width > 0 && viewport.height > 0)) return std::nullopt;
    viewport.modelToPaper = modelToPaper(view, viewport);
    return viewport;
}

}  // namespace picture
