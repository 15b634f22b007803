#include "desk/dxf/tag_reader.h"
#include "desk/model/entity.h"

namespace model {

namespace {

/// Groups `code`, `code` + 10 and `code` + 20. A LINE's points are world coordinates.
Variant point(const drawing::Drawing& drawing, drawing::EntityId id, int code) {
    drawing.requireAlive(id);
    geometry::Point3 point;
    dxf::TagReader tags = drawing.tags(id);
    for (dxf::Tag tag; tags.next(tag);) {
        if (tag.code == code) point.x = tag.numberOr(0);
        if (tag.code == code + 10) point.y = tag.numberOr(0);
        if (tag.code == code + 20) point.z = tag.numberOr(0);
    }
    return fromPoint(point);
}

}  // namespace

Variant Line::startPoint() const { return point(drawing(), id_, 10); }
Variant Line::endPoint() const { return point(drawing(), id_, 11); }

const MemberTable& Line::members() const {
    static const MemberTable table(
        {property<&Line::startPoint>("StartPoint"), property<&Line::endPoint>("EndPoint")}, &Entity::table());
    return table;
}

}  // namespace model
