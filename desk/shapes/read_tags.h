#pragma once

#include "desk/dxf/tag_reader.h"
#include "desk/geometry/angles.h"
#include "desk/shapes/names.h"

namespace shapes {

/// Hands each group of an entity proper to `visit`: extended data (codes from 1000 on) and an embedded object
/// (behind a group 101) are passed over.
template <typename Visit>
void forEachTag(dxf::TagReader tags, Visit&& visit) {
    dxf::Tag tag;
    while (tags.next(tag) && tag.code != 101 && tag.code < 1000) visit(tag);
}

/// Takes a group for the point whose X has the code `code`, Y that code + 10 and Z that code + 20. False for
/// any other group.
inline bool takePoint(const dxf::Tag& tag, int code, Point3& point) {
    if (tag.code == code) {
        point.x = tag.numberOr(0);
    } else if (tag.code == code + 10) {
        point.y = tag.numberOr(0);
    } else if (tag.code == code + 20) {
        point.z = tag.numberOr(0);
    } else {
        return false;
    }
    return true;
}

}  // namespace shapes
