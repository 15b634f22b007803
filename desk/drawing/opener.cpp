#include "desk/drawing/opener.h"

#include "basic/text.h"

#include <limits>

namespace drawing {

Opener::Opener(dxf::Source source, dxf::Mode mode)
    : drawing_(new Drawing(std::move(source))),
      store_(drawing_->store()),
      mode_(mode),
      scanner_(store_.source().tags(), mode, store_.findings) {}

std::unique_ptr<Drawing> Opener::open() {
    scan();
    readTables();
    store_.findings.resolve(store_.source().bytes(), store_.format().binary);
    return std::move(drawing_);
}

void Opener::scan() {
    dxf::Tag tag;
    for (dxf::Event event; (event = scanner_.next(tag)) != dxf::Event::End;) {
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
    section_ = kind;
    recording_ = kind == SectionKind::Tables || kind == SectionKind::Blocks ||
                 kind == SectionKind::Entities || kind == SectionKind::Objects;
    sectionFirst_ = store_.count();
}

void Opener::endSection() {
    endObject();
    endParts();
    endHeaderVariable();
    if (blockIsOpen_) {
        blockRanges_.back().last = store_.count();
        blockIsOpen_ = false;
        report(blockRanges_.back().begin, "this block has no ENDBLK");
    }
    if (recording_ && section_ == dxf::SectionKind::Entities) {
        entityRanges_.push_back({sectionFirst_, store_.count()});
    }
    recording_ = false;
}

void Opener::headerValue(const dxf::Tag& tag) {
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
    if (!variable_.empty()) {
        const auto bytes = store_.source().bytes().substr(variableBegin_, lastEnd_ - variableBegin_);
        drawing_->header_.add({variable_, bytes});
    }
    variable_ = {};
}

void Opener::beginObject(const dxf::Tag& tag) {
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
    lastEnd_ = tag.end;
    switch (tag.code) {
        case 5:
            // In the dimension styles of R12 this is the name of an arrow block.
            if (record_.handle == 0 && record_.type != kDimStyleEntry) record_.handle = tag.handle();
            break;
        case 105:
            if (record_.type == kDimStyleEntry) record_.handle = tag.handle();
            break;
        case 8:
            if (record_.layer == kNoName && !record_.has(kObject)) {
                record_.layer = store_.names.internRaw(tag.raw, store_.encoding());
            }
            break;
        case 2:
            if (record_.name == kNoName && !record_.has(kObject)) {
                record_.name = store_.names.internRaw(tag.raw, store_.encoding());
            }
            break;
        case 60:
            if (markers_ <= 1) record_.set(kInvisible, tag.integerOr(0) != 0);
            break;
        case 66:
            record_.set(kPartsFollow, tag.integerOr(0) != 0);
            break;
        case 67:
            if (markers_ <= 1) record_.set(kPaperSpace, tag.integerOr(0) != 0);
            break;
        case 100:
            ++markers_;
            break;
        case 102:
            if (tag.raw.starts_with("{ACAD_XDICTIONARY")) record_.set(kHasDictionary);
            break;
        default:
            break;
    }
}

void Opener::endObject() {
    if (!inObject_) return;
    inObject_ = false;
    const char* const end = store_.source().bytes().data() + lastEnd_;
    const auto size = static_cast<std::size_t>(end - record_.bytes);
    if (size > std::numeric_limits<std::uint32_t>::max()) {
        store_.source().tags().fail(lastEnd_ - size, "an object of more than 4 GB");
    }
    record_.size = static_cast<std::uint32_t>(size);
    const EntityId id = store_.count();
    if (section_ == dxf::SectionKind::Blocks || section_ == dxf::SectionKind::Entities) attach(id, record_);
    if (record_.type == kLayout) layouts_.push_back(id);
    store_.addFromFile(record_);
}

void Opener::attach(EntityId id, Record& record) {
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
            ++store_.whileReading(main_).parts;
            partsOpen_ = record.type != kSeqEnd;
            if (!partsOpen_) main_ = kNoEntity;
            return;
        }
        endParts();
        record.set(kStray);
        scanner_.report(offsetOf(id), record.handle,
                        std::string(kTypeNames[record.type]) + " that belongs to no entity");
        return;
    }
    if (attachText(id, record)) return;
    endParts();
    if (record.type == kInsert || record.type == kPolyline) {
        main_ = id;
        partsOpen_ = record.type == kPolyline || record.has(kPartsFollow);
    }
    if (record.type == kBlockBegin || record.type == kBlockEnd) enterBlock(id);
}

bool Opener::attachText(EntityId id, Record& record) {
    // Before R2018 the text of a multi-line attribute is an MTEXT of its own behind the attribute.
    const bool follows = partsOpen_ && store_.record(main_).type == kInsert &&
                         store_.record(id - 1).type == kAttrib && store_.typeName(record.type) == "MTEXT";
    if (!follows) return false;
    record.set(kPart);
    record.owner = main_;
    ++store_.whileReading(main_).parts;
    return true;
}

void Opener::endParts() {
    if (main_ != kNoEntity && partsOpen_) {
        const Record& main = store_.record(main_);
        scanner_.report(offsetOf(main_), main.handle,
                        "the SEQEND of this " + std::string(kTypeNames[main.type]) + " is missing");
    }
    main_ = kNoEntity;
    partsOpen_ = false;
}

void Opener::enterBlock(EntityId id) {
    if (record_.type == kBlockEnd) {
        if (blockIsOpen_) {
            blockRanges_.back().last = blockRanges_.back().end = id;
        } else {
            scanner_.report(offsetOf(id), record_.handle, "ENDBLK without BLOCK");
        }
        blockIsOpen_ = false;
        return;
    }
    if (blockIsOpen_) {
        blockRanges_.back().last = id;
        report(blockRanges_.back().begin, "this block has no ENDBLK");
    }
    blockRanges_.push_back({id, kNoEntity, kNoEntity});
    blockIsOpen_ = true;
}

void Opener::report(EntityId id, const std::string& reason) {
    scanner_.report(offsetOf(id), store_.record(id).handle, reason);
}

std::size_t Opener::offsetOf(EntityId id) const {
    const char* bytes = id < store_.count() ? store_.record(id).bytes : record_.bytes;
    return static_cast<std::size_t>(bytes - store_.source().bytes().data());
}

}  // namespace drawing
