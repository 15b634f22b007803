#include "desk/drawing/creator.h"

#include "basic/text.h"
#include "desk/drawing/inside.h"
#include "desk/dxf/tag_writer.h"
#include "desk/geometry/angles.h"

namespace drawing {

Creator::Creator(Drawing& drawing) : drawing_(drawing), store_(Inside::store(drawing)) {}

const Creator::Current& Creator::current() {
    if (current_.known) return current_;
    const HeaderVariables& header = drawing_.header();
    const NameKey layer = store_.names.find(header.text("$CLAYER").value_or("0"));
    current_.layerName = drawing_.layers().contains(layer) ? drawing_.layers()[layer].name : "0";
    current_.layer = store_.names.intern(current_.layerName);
    current_.known = true;

    dxf::TagWriter style(store_.format(), current_.style);
    const std::string lineType = header.text("$CELTYPE").value_or("BYLAYER");
    if (!lineType.empty() && !basic::equalIgnoringCase(lineType, "BYLAYER")) style.text(6, lineType);
    const int color = header.integer("$CECOLOR").value_or(kColorByLayer);
    if (color != kColorByLayer) style.integer(62, color);
    if (!store_.format().hasSubclasses()) return current_;
    const double scale = header.number("$CELTSCALE").value_or(1);
    if (scale != 1) style.number(48, scale);
    constexpr int kWeightByLayer = -1;
    const int weight = header.integer("$CELWEIGHT").value_or(kWeightByLayer);
    if (weight != kWeightByLayer && store_.format().version >= dxf::Version::R2000)
        style.integer(370, weight);
    return current_;
}

AttributeWriter& Creator::writerOf(BlockId block) {
    const auto found = writers_.find(block);
    if (found != writers_.end()) return found->second;
    return writers_.emplace(block, AttributeWriter(drawing_, block)).first->second;
}

void Creator::begin(std::string_view type, Handle handle, Handle owner) {
    const Current& current = this->current();
    dxf::TagWriter writer(store_.format(), bytes_);
    writer.plain(0, type);
    if (handle != 0) writer.handle(5, handle);
    if (owner != 0 && store_.format().version >= dxf::Version::R2000) writer.handle(330, owner);
    writer.subclass("AcDbEntity");
    writer.text(8, current.layerName);
    writer.raw(current.style);
}

EntityId Creator::store(const Record& record, std::size_t begin, std::size_t end) {
    return store_.add(record, std::string_view(bytes_).substr(begin, end - begin));
}

void Creator::writeReference(BlockId block, const Placement& placement, Handle handle, bool hasAttributes) {
    begin("INSERT", handle, spaceHandle());
    dxf::TagWriter writer(store_.format(), bytes_);
    writer.subclass("AcDbBlockReference");
    if (hasAttributes) writer.integer(66, 1);
    writer.text(2, drawing_.blocks()[block].name);
    writer.point(10, placement.insertion.x, placement.insertion.y, placement.insertion.z);
    if (placement.scale.x != 1) numbers_.write(writer, 41, placement.scale.x);
    if (placement.scale.y != 1) numbers_.write(writer, 42, placement.scale.y);
    if (placement.scale.z != 1) numbers_.write(writer, 43, placement.scale.z);
    if (placement.rotation != 0) numbers_.write(writer, 50, geometry::degreesOf(placement.rotation));
}

EntityId Creator::insert(BlockId block, const Placement& placement) {
    AttributeWriter& attributes = writerOf(block);
    attributes.prepare(placement, numbers_);
    const std::size_t count = attributes.count();
    const std::size_t parts = count == 0 ? 0 : count + 1;
    const Handle first = store_.takeHandles(1 + parts);
    const auto handleOf = [first](std::size_t index) { return first == 0 ? 0 : first + index; };
    const bool withOwners = store_.format().version >= dxf::Version::R2000;

    // All bytes first, so that a number that can't be written leaves no half reference behind.
    ends_.clear();
    bytes_.clear();
    writeReference(block, placement, handleOf(0), count != 0);
    ends_.push_back(bytes_.size());
    for (std::size_t i = 0; i < count; ++i) {
        attributes.write(i, placement.insertion, handleOf(1 + i), withOwners ? handleOf(0) : 0, bytes_);
        ends_.push_back(bytes_.size());
    }
    if (count != 0) {
        begin("SEQEND", handleOf(1 + count), handleOf(0));
        ends_.push_back(bytes_.size());
    }

    Record record;
    record.type = kInsert;
    record.handle = handleOf(0);
    record.owner = drawing_.modelSpace();
    record.layer = current_.layer;
    record.name = store_.names.intern(drawing_.blocks()[block].name);
    record.parts = static_cast<std::uint32_t>(parts);
    record.set(kPartsFollow, count != 0);
    const EntityId id = store(record, 0, ends_[0]);
    for (std::size_t i = 1; i <= parts; ++i) {
        Record part;
        part.type = i <= count ? kAttrib : kSeqEnd;
        part.handle = handleOf(i);
        part.owner = id;
        part.layer = i <= count ? attributes.layer(i - 1) : current_.layer;
        part.name = i <= count ? attributes.tag(i - 1) : kNoName;
        part.set(kPart);
        part.set(kInvisible, i <= count && !attributes.isVisible(i - 1));
        store(part, ends_[i - 1], ends_[i]);
    }
    return id;
}

EntityId Creator::line(const Point3& start, const Point3& end) {
    bytes_.clear();
    Record record;
    record.type = kLine;
    record.handle = store_.takeHandles(1);
    record.owner = drawing_.modelSpace();
    begin("LINE", record.handle, spaceHandle());
    record.layer = current_.layer;
    dxf::TagWriter writer(store_.format(), bytes_);
    writer.subclass("AcDbLine");
    writer.point(10, start.x, start.y, start.z);
    writer.point(11, end.x, end.y, end.z);
    return store(record, 0, bytes_.size());
}

}  // namespace drawing
