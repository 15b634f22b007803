#include "desk/drawing/opener.h"

#include "basic/text.h"
#include "desk/drawing/inside.h"
#include "desk/drawing/work_watch.h"

#include <limits>

// Opening is one pass over the groups of the file (this file), then a pass over the records that it made
// (opener_tables.cpp). The first one reads of each object no more than a handful of groups: handle, layer,
// name, visibility, what tells where it belongs. All others are passed over and read when somebody asks. A
// record holds the range of the file's bytes from the object's group 0 to the last group before the next 0.
//
// The structure is that of the DXF Reference ("DXF File Structure"): sections; in TABLES, tables of entries;
// in BLOCKS, definitions from BLOCK to ENDBLK; in ENTITIES, the entities of model space and of the active
// paper space mixed, told apart by group 67; in OBJECTS, dictionaries and what hangs on them. Other sections
// are kept as bytes and not read.

namespace drawing {

namespace {

dxf::Mode modeOf(Reading reading) {
    return reading == Reading::Strict ? dxf::Mode::Strict : dxf::Mode::Lenient;
}

}  // namespace

Opener::Opener(dxf::Source source, dxf::Mode mode)
    : drawing_(new Drawing(std::move(source))),
      store_(Inside::store(*drawing_)),
      mode_(mode),
      scanner_(store_.source().tags(), mode, store_.findings) {}

std::unique_ptr<Drawing> Opener::open() {
    scan();
    readTables();
    // Findings name offsets so far; their lines are counted in one pass at the end.
    store_.findings.resolve(store_.source().bytes(), store_.format().binary);
    return std::move(drawing_);
}

void Opener::scan() {
    // The scanner knows sections and objects and repairs what is damaged in their frame; here the groups
    // inside count.
    dxf::Tag tag;
    WorkSteps steps;
    const std::size_t size = store_.source().bytes().size();
    for (dxf::Event event; (event = scanner_.next(tag)) != dxf::Event::End;) {
        steps.step(tag.begin, size);
        switch (event) {
            case dxf::Event::Value:
                if (inObject_) {
                    value(tag);
                } else if (section_ == dxf::SectionKind::Header) {
                    headerValue(tag);
                }
                break;
            case dxf::Event::Object:
                endObject();
                if (recording_) beginObject(tag);
                break;
            case dxf::Event::SectionBegin:
                beginSection(scanner_.section());
                break;
            case dxf::Event::SectionEnd:
            case dxf::Event::End:
                endSection();
                break;
        }
    }
    endSection();
    store_.outline = scanner_.takeOutline();
    store_.endOfFile();
}

void Opener::beginSection(dxf::SectionKind kind) {
    using dxf::SectionKind;
    // A record's number is its place in the file among all records; ranges of numbers stand for sections and
    // blocks.
    section_ = kind;
    recording_ = kind == SectionKind::Tables || kind == SectionKind::Blocks ||
                 kind == SectionKind::Entities || kind == SectionKind::Objects;
    sectionFirst_ = store_.count();
}

void Opener::endSection() {
    // A file that breaks off ends in the middle of anything: what is open is closed as far as it came.
    endObject();
    endParts();
    endHeaderVariable();
    // A definition never crosses the end of its section.
    if (blockIsOpen_) {
        blockRanges_.back().last = store_.count();
        blockIsOpen_ = false;
        report(blockRanges_.back().begin, dxf::finding::kNoBlockEnd, "this block has no ENDBLK");
    }
    if (recording_ && section_ == dxf::SectionKind::Entities) {
        entityRanges_.push_back({sectionFirst_, store_.count()});
    }
    recording_ = false;
}

void Opener::headerValue(const dxf::Tag& tag) {
    // HEADER: group 9 names a variable, the groups behind it are its value. Only the place of the seed is
    // kept apart, since it has to be patched when handles were given.
    if (tag.code == 9) {
        endHeaderVariable();
        variable_ = tag.raw;
        variableBegin_ = tag.end;
    } else if (basic::NameEqual{}(variable_, "$HANDSEED") && tag.code == 5) {
        store_.seedValue = {tag.begin, tag.end};
        store_.fileSeed = tag.handle();
    }
    lastEnd_ = tag.end;
}

void Opener::endHeaderVariable() {
    // The value stays bytes, read when somebody asks for the variable.
    if (!variable_.empty()) {
        const auto bytes = store_.source().bytes().substr(variableBegin_, lastEnd_ - variableBegin_);
        drawing_->header_.add({variable_, bytes});
    }
    variable_ = {};
}

void Opener::beginObject(const dxf::Tag& tag) {
    // The type's name is interned: the first types have fixed numbers (TypeId), by which all else is decided.
    record_ = Record();
    record_.bytes = store_.source().bytes().data() + tag.begin;
    record_.type = store_.internType(tag.raw);
    if (section_ == dxf::SectionKind::Tables) record_.set(kTableEntry);
    if (section_ == dxf::SectionKind::Objects) record_.set(kObject);
    lastEnd_ = tag.end;
    markers_ = 0;
    inObject_ = true;
}

void Opener::value(const dxf::Tag& tag) {
    // The first group of a code counts: the same codes come again with other meanings in later subclasses, in
    // extended data and in an embedded text. Those of the common part (60, 67) stand before the second
    // subclass marker; R12 has no markers and gives them no other meaning.
    lastEnd_ = tag.end;
    switch (tag.code) {
        case 5:
            // The handle of everything (DXF Reference, "Common Group Codes for Entities") but dimension
            // styles, 105. In the dimension styles of R12 this is the name of an arrow block.
            if (record_.handle == 0 && record_.type != kDimStyleEntry) record_.handle = tag.handle();
            break;
        case 105:
            if (record_.type == kDimStyleEntry) record_.handle = tag.handle();
            break;
        case 8:
            // The layer. Names are interned as the file has them, and decoded once each.
            if (record_.layer == kNoName && !record_.has(kObject)) {
                record_.layer = store_.names.internRaw(tag.raw, store_.encoding());
            }
            break;
        case 2:
            // The name: of a table entry, a definition, the block that a reference shows, an attribute's tag.
            if (record_.name == kNoName && !record_.has(kObject)) {
                record_.name = store_.names.internRaw(tag.raw, store_.encoding());
            }
            break;
        case 60:
            if (markers_ <= 1) record_.set(kInvisible, tag.integerOr(0) != 0);
            break;
        case 66:
            // "Entities follow": attributes behind an INSERT.
            record_.set(kPartsFollow, tag.integerOr(0) != 0);
            break;
        case 67:
            if (markers_ <= 1) record_.set(kPaperSpace, tag.integerOr(0) != 0);
            break;
        case 100:
            ++markers_;
            break;
        case 102:
            // A group of an application or of the host; this one names the dictionary that the entity owns.
            if (tag.raw.starts_with("{ACAD_XDICTIONARY")) record_.set(kHasDictionary);
            break;
        default:
            break;
    }
}

void Opener::endObject() {
    if (!inObject_) return;
    inObject_ = false;
    // A record counts its bytes in 32 bits, which keeps it small.
    const char* const end = store_.source().bytes().data() + lastEnd_;
    const auto size = static_cast<std::size_t>(end - record_.bytes);
    if (size > std::numeric_limits<std::uint32_t>::max()) {
        store_.source().tags().fail(lastEnd_ - size, "an object of more than 4 GB");
    }
    record_.size = static_cast<std::uint32_t>(size);
    const EntityId id = store_.count();
    if (section_ == dxf::SectionKind::Blocks || section_ == dxf::SectionKind::Entities) attach(id, record_);
    // A layout names its space by handle, and the handles are known when all is read.
    if (record_.type == kLayout) layouts_.push_back(id);
    store_.addFromFile(record_);
}

void Opener::attach(EntityId id, Record& record) {
    // Attributes follow their INSERT and vertices their POLYLINE as entities of their own, up to a SEQEND.
    // They become parts: records that lie right behind that of the main entity, which counts them.
    const bool isAttribute = record.type == kAttrib;
    const bool isVertex = record.type == kVertex;
    if (isAttribute || isVertex || record.type == kSeqEnd) {
        // An attribute behind an INSERT belongs to it even where group 66 is missing.
        const bool fits = main_ != kNoEntity && (partsOpen_ || isAttribute) &&
                          (!isAttribute || store_.record(main_).type == kInsert) &&
                          (!isVertex || store_.record(main_).type == kPolyline);
        if (fits) {
            record.set(kPart);
            record.owner = main_;
            store_.countPartWhileReading(main_);
            partsOpen_ = record.type != kSeqEnd;
            if (!partsOpen_) main_ = kNoEntity;
            return;
        }
        endParts();
        record.set(kStray);
        scanner_.report(offsetOf(id), record.handle, dxf::finding::kStrayPart,
                        std::string(kTypeNames[record.type]) + " that belongs to no entity");
        return;
    }
    if (attachText(id, record)) return;
    // Group 66 says whether attributes follow an INSERT; vertices always follow a POLYLINE.
    endParts();
    if (record.type == kInsert || record.type == kPolyline) {
        main_ = id;
        partsOpen_ = record.type == kPolyline || record.has(kPartsFollow);
    }
    if (record.type == kBlockBegin || record.type == kBlockEnd) enterBlock(id);
}

bool Opener::attachText(EntityId id, Record& record) {
    // From R2018 on it is embedded in the attribute itself, behind a group 101.
    // Before R2018 the text of a multi-line attribute is an MTEXT of its own behind the attribute.
    const bool follows = partsOpen_ && store_.record(main_).type == kInsert &&
                         store_.record(id - 1).type == kAttrib && store_.typeName(record.type) == "MTEXT";
    if (!follows) return false;
    record.set(kPart);
    record.owner = main_;
    store_.countPartWhileReading(main_);
    return true;
}

void Opener::endParts() {
    if (main_ != kNoEntity && partsOpen_) {
        const Record main = store_.record(main_);
        scanner_.report(offsetOf(main_), main.handle, dxf::finding::kNoPartsEnd,
                        "the SEQEND of this " + std::string(kTypeNames[main.type]) + " is missing");
    }
    main_ = kNoEntity;
    partsOpen_ = false;
}

void Opener::enterBlock(EntityId id) {
    // Definitions don't nest: a BLOCK inside of another ends that one, as other programs read it.
    if (record_.type == kBlockEnd) {
        if (blockIsOpen_) {
            blockRanges_.back().last = blockRanges_.back().end = id;
        } else {
            scanner_.report(offsetOf(id), record_.handle, dxf::finding::kStrayBlockEnd,
                            "ENDBLK without BLOCK");
        }
        blockIsOpen_ = false;
        return;
    }
    if (blockIsOpen_) {
        blockRanges_.back().last = id;
        report(blockRanges_.back().begin, dxf::finding::kNoBlockEnd, "this block has no ENDBLK");
    }
    // Which block it is, and what in it is an entity, is seen when all tables are read.
    blockRanges_.push_back({id, kNoEntity, kNoEntity});
    blockIsOpen_ = true;
}

void Opener::report(EntityId id, dxf::FindingKind kind, const std::string& reason) {
    scanner_.report(offsetOf(id), store_.record(id).handle, kind, reason);
}

std::size_t Opener::offsetOf(EntityId id) const {
    const char* bytes = id < store_.count() ? store_.record(id).bytes : record_.bytes;
    return static_cast<std::size_t>(bytes - store_.source().bytes().data());
}

std::unique_ptr<Drawing> Drawing::open(const std::string& path, Reading reading) {
    return Opener(dxf::Source::open(path), modeOf(reading)).open();
}

std::unique_ptr<Drawing> Drawing::parse(std::string_view bytes, const std::string& name, Reading reading) {
    return Opener(dxf::Source::fromBytes(bytes, name), modeOf(reading)).open();
}

}  // namespace drawing
