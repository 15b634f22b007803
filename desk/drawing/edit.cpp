#include "desk/drawing/attribute_placement.h"
#include "desk/drawing/attribute_text.h"
#include "desk/drawing/drawing.h"
#include "desk/drawing/multi_line_text.h"
#include "desk/drawing/store.h"
#include "desk/drawing/tag_edit.h"
#include "desk/geometry/angles.h"

#include <cmath>

namespace drawing {

namespace {

constexpr std::string_view kCommonPart = "AcDbEntity";
constexpr std::string_view kTextPart = "AcDbText";

bool isFinite(const Point3& point) {
    return std::isfinite(point.x) && std::isfinite(point.y) && std::isfinite(point.z);
}

}  // namespace

void Drawing::requireEditable(EntityId id) const {
    requireAlive(id);
    if (isOnLockedLayer(id)) raise(kLockedLayer, std::string(layerName(id)));
}

void Drawing::applyEdit(EntityId id, TagEdit& edit) {
    const std::string_view before = store_->view(id);
    const std::string_view after = edit.apply(before);
    if (after == before) return;
    store_->setBytes(id, after);
    noteChange();
}

void Drawing::setInsertionPoint(EntityId id, const Point3& point) {
    Placement changed = placement(id);
    changed.insertion = wcsToOcs(point, changed.extrusion);
    setReference(id, changed);
}

void Drawing::setScale(EntityId id, const Vector3& scale) {
    Placement changed = placement(id);
    changed.scale = scale;
    setReference(id, changed);
}

void Drawing::setRotation(EntityId id, double radians) {
    Placement changed = placement(id);
    changed.rotation = radians;
    setReference(id, changed);
}

void Drawing::setReference(EntityId id, const Placement& placement) {
    requireEditable(id);
    if (!isFinite(placement.insertion) || !isFinite(placement.scale) || !std::isfinite(placement.rotation)) {
        raise(kInvalidInput);
    }
    const Placement before = this->placement(id);
    const Vector3& scale = placement.scale;
    const bool scaleChanged = !(before.scale == scale);
    if (scale.x == 0 || scale.y == 0 || scale.z == 0) raise(kInvalidInput, "a scale factor of 0");
    TagEdit& edit = store_->freshEdit();
    if (!(before.insertion == placement.insertion)) edit.point(10, {}, placement.insertion);
    if (scaleChanged) edit.number(41, {}, scale.x);
    if (scaleChanged) edit.number(42, {}, scale.y);
    if (scaleChanged) edit.number(43, {}, scale.z);
    if (before.rotation != placement.rotation) edit.number(50, {}, geometry::degreesOf(placement.rotation));
    if (edit.isEmpty()) return;
    const UndoStep step(*this);
    applyEdit(id, edit);
    moveAttributes(id, before, placement);
}

void Drawing::moveAttributes(EntityId id, const Placement& from, const Placement& to) {
    TagEdit& edit = store_->freshEdit();
    for (EntityId part : attributes(id)) {
        const AttribData before = attribute(part);
        AttribData data = before;
        moveAttribute(data, from, to);
        edit.point(10, kTextPart, data.position);
        if (data.hasAlignment) edit.point(11, kTextPart, data.alignment);
        if (data.height != before.height) edit.number(40, kTextPart, data.height);
        if (data.widthFactor != before.widthFactor) edit.number(41, kTextPart, data.widthFactor);
        if (data.rotation != before.rotation) edit.number(50, kTextPart, geometry::degreesOf(data.rotation));
        if (data.oblique != before.oblique) edit.number(51, kTextPart, geometry::degreesOf(data.oblique));
        if (data.generation != before.generation) edit.integer(71, kTextPart, data.generation);
        if (!(data.common.extrusion == before.common.extrusion))
            edit.point(210, kTextPart, data.common.extrusion);
        applyEdit(part, edit);
        if (!before.multiLine) continue;
        store_->setBytes(part, withEmbeddedPosition(format(), store_->view(part),
                                                    ocsToWcs(data.position, data.common.extrusion)));
    }
}

void Drawing::setVisible(EntityId id, bool visible) {
    requireEditable(id);
    const UndoStep step(*this);
    TagEdit& edit = store_->freshEdit();
    const auto setOne = [&](EntityId one) {
        if (store_->record(one).has(kInvisible) != visible) return;
        if (visible) {
            edit.remove(60, kCommonPart);
        } else {
            edit.integer(60, kCommonPart, 1);
        }
        store_->change(one).set(kInvisible, !visible);
        applyEdit(one, edit);
    };
    setOne(id);
    for (EntityId part : attributes(id)) setOne(part);
}

void Drawing::setAttributeText(EntityId id, std::string_view text) {
    requireEditable(id);
    const std::uint16_t kind = store_->record(id).type;
    if (kind != kAttrib && kind != kAttDef) raise(kNotApplicable, std::string(type(id)));
    const UndoStep step(*this);
    TagEdit& edit = store_->freshEdit();
    edit.text(1, kTextPart, text);
    const std::string_view before = store_->view(id);
    const TextPlace place = findText(format(), before);
    if (!place.isEmbedded && beginsByWidth(place.horizontal)) {
        const AttribData data = attribute(id);
        if (data.hasAlignment) edit.point(10, kTextPart, firstPointFor(data, text));
        applyEdit(id, edit);
    } else if (place.end == place.begin) {
        applyEdit(id, edit);
    } else if (const std::string_view after = edit.applyAt(before, place.begin, place.end); after != before) {
        store_->setBytes(id, after);
        noteChange();
    }
    if (!place.isEmbedded) return;
    store_->setBytes(id, withEmbeddedText(format(), store_->view(id), text));
}

void Drawing::setText(EntityId id, int code, std::string_view subclass, std::string_view value) {
    requireEditable(id);
    const UndoStep step(*this);
    TagEdit& edit = store_->freshEdit();
    edit.text(code, subclass, value);
    applyEdit(id, edit);
    refreshRecord(id);
}

void Drawing::setNumber(EntityId id, int code, std::string_view subclass, double value) {
    requireEditable(id);
    if (!std::isfinite(value)) raise(kInvalidInput);
    const UndoStep step(*this);
    TagEdit& edit = store_->freshEdit();
    edit.number(code, subclass, value);
    applyEdit(id, edit);
}

void Drawing::setInteger(EntityId id, int code, std::string_view subclass, std::int64_t value) {
    requireEditable(id);
    const UndoStep step(*this);
    TagEdit& edit = store_->freshEdit();
    edit.integer(code, subclass, value);
    applyEdit(id, edit);
    refreshRecord(id);
}

void Drawing::refreshRecord(EntityId id) {
    Record fresh = store_->record(id);
    fresh.layer = fresh.name = kNoName;
    fresh.set(kInvisible, false);
    int markers = 0;
    dxf::TagReader reader = tags(id);
    for (dxf::Tag tag; reader.next(tag) && tag.code < 1000;) {
        if (tag.code == 100) ++markers;
        if (tag.code == 8 && fresh.layer == kNoName) {
            fresh.layer = store_->names.intern(tag.text());
        } else if (tag.code == 2 && fresh.name == kNoName) {
            fresh.name = store_->names.intern(tag.text());
        } else if (tag.code == 60 && markers <= 1) {
            fresh.set(kInvisible, tag.integerOr(0) != 0);
        }
    }
    const Record before = store_->record(id);
    const bool indexed = !before.has(kPart) && before.owner != kNoBlock && blocks_[before.owner].isLayout();
    const bool renamed = before.name != fresh.name;
    if (indexed && renamed) store_->unindexName(id);
    store_->setNames(id, fresh.layer, fresh.name);
    store_->change(id).set(kInvisible, fresh.has(kInvisible));
    if (indexed && renamed) store_->indexName(id);
}

}  // namespace drawing
