#include "desk/dxf/scanner.h"

#include <algorithm>
#include <utility>

namespace dxf {

namespace {

constexpr std::pair<std::string_view, SectionKind> kSections[] = {
    {"HEADER", SectionKind::Header},     {"CLASSES", SectionKind::Classes},
    {"TABLES", SectionKind::Tables},     {"BLOCKS", SectionKind::Blocks},
    {"ENTITIES", SectionKind::Entities}, {"OBJECTS", SectionKind::Objects},
    {"ACDSDATA", SectionKind::AcdsData}, {"THUMBNAILIMAGE", SectionKind::Thumbnail},
};

/// Whether a drawing is worth opening when the file breaks off in this section: what was drawn is all there.
bool mayBreakOff(SectionKind kind) {
    return kind == SectionKind::Objects || kind == SectionKind::Thumbnail || kind == SectionKind::AcdsData ||
           kind == SectionKind::Unknown;
}

/// Makes the tag an empty range, for an event that no group stands for.
void setEmpty(Tag& tag, std::size_t offset, const TagSource& source) {
    tag = Tag{0, {}, offset, offset, source.format};
}

}  // namespace

SectionKind sectionKind(std::string_view name) {
    for (const auto& [known, kind] : kSections)
        if (known == name) return kind;
    return SectionKind::Unknown;
}

const Section* Outline::find(SectionKind kind) const {
    for (const Section& section : sections)
        if (section.kind == kind) return &section;
    return nullptr;
}

Scanner::Scanner(const TagSource& source, Mode mode, Findings& findings)
    : reader_(source), mode_(mode), findings_(findings) {
    const Format& format = *source.format;
    if (!format.versionName.empty() && !isKnownVersion(format.versionName))
        report(format.start, 0, finding::kVersion,
               "version " + dxf::quoted(format.versionName) + " is read as " +
                   std::string(versionName(format.version)));
    if (format.version < Version::R2007 && !format.codePageName.empty() &&
        !Encoding::isKnown(format.codePageName))
        report(format.start, 0, finding::kCodePage,
               "code page " + dxf::quoted(format.codePageName) + " is read as ANSI_1252");
}

void Scanner::report(std::size_t offset, Handle handle, FindingKind kind, std::string reason) {
    if (mode_ == Mode::Strict) reader_.source().fail(offset, reason);
    findings_.add(offset, handle, kind, std::move(reason));
}

void Scanner::oddCode(const Tag& tag) {
    report(tag.begin, 0, finding::kGroupCode,
           "group code " + std::to_string(tag.code) + " isn't one of the format's");
}

Event Scanner::betweenSections(Tag& tag) {
    for (;;) {
        if (tag.starts("SECTION")) return beginSection(tag);
        if (tag.starts("EOF")) return finish(tag);
        if (tag.code != kComment && !strayReported_) {
            strayReported_ = true;
            report(tag.begin, 0, finding::kStrayGroups, "groups outside any section are passed over");
        }
        const TagReader::Step step = reader_.advance(tag);
        if (step != TagReader::Step::Group) return outOfGroups(step, tag);
    }
}

Event Scanner::beginSection(Tag& tag) {
    const std::size_t begin = tag.begin;
    const TagReader::Step step = reader_.advance(tag);
    if (step == TagReader::Step::BadCode) reader_.fail(step);
    if (step != TagReader::Step::Group || tag.code != 2)
        reader_.source().fail(begin, "a section without a name");
    Section section;
    section.name = tag.raw;
    section.kind = sectionKind(tag.raw);
    section.begin = begin;
    section.bodyBegin = tag.end;
    if (section.kind != SectionKind::Unknown && outline_.find(section.kind) != nullptr)
        report(begin, 0, finding::kSecondSection, "a second section " + std::string(section.name));
    kind_ = section.kind;
    inSection_ = true;
    outline_.sections.push_back(section);
    return Event::SectionBegin;
}

Event Scanner::endSection(std::size_t bodyEnd, std::size_t end) {
    outline_.sections.back().bodyEnd = bodyEnd;
    outline_.sections.back().end = end;
    inSection_ = false;
    return Event::SectionEnd;
}

Event Scanner::structure(Tag& tag) {
    if (tag.raw == "ENDSEC") return endSection(tag.begin, tag.end);
    if (tag.raw == "SECTION") {
        // An entity type has that name too, a section plane; only a section's second group is its name.
        Tag name;
        const std::size_t behind = reader_.position();
        const bool begins = reader_.advance(name) == TagReader::Step::Group && name.code == 2;
        reader_.seek(behind);
        if (!begins) return Event::Object;
    }
    const std::size_t offset = tag.begin;
    report(offset, 0, finding::kNoSectionEnd,
           "section " + std::string(outline_.sections.back().name) + " isn't ended by ENDSEC");
    reader_.seek(offset);
    setEmpty(tag, offset, reader_.source());
    return endSection(offset, offset);
}

Event Scanner::outOfGroups(TagReader::Step step, Tag& tag) {
    if (step == TagReader::Step::BadCode) reader_.fail(step);
    const TagSource& source = reader_.source();
    const std::size_t size = source.bytes.size();
    if (inSection_) {
        const std::string text =
            "the file breaks off in section " + std::string(outline_.sections.back().name);
        if (!mayBreakOff(kind_)) source.fail(reader_.position(), text);
        report(reader_.position(), 0, finding::kBrokenOff, text);
        // A piece of a group that stands last stays last: what is added comes in front of it.
        wholeEnd_ = reader_.position();
        reader_.seek(size);
        setEmpty(tag, wholeEnd_, source);
        return endSection(wholeEnd_, wholeEnd_);
    }
    if (step == TagReader::Step::CutOff) {
        report(reader_.position(), 0, finding::kCutOff, "the file ends in the middle of a group");
        wholeEnd_ = reader_.position();
        reader_.seek(size);
    }
    report(size, 0, finding::kNoFileEnd, "the file doesn't end with EOF");
    setEmpty(tag, std::min(wholeEnd_, size), source);
    return finish(tag);
}

Event Scanner::finish(Tag& tag) {
    reader_.seek(tag.begin);
    outline_.eof = tag.begin;
    reportMissingSections();
    return Event::End;
}

void Scanner::reportMissingSections() {
    const std::size_t start = reader_.source().format->start;
    const auto need = [&](SectionKind kind, const char* name) {
        if (outline_.find(kind) == nullptr)
            report(start, 0, finding::kMissingSection, std::string("there is no section ") + name);
    };
    need(SectionKind::Header, "HEADER");
    if (reader_.source().format->hasSubclasses()) {
        need(SectionKind::Tables, "TABLES");
        need(SectionKind::Blocks, "BLOCKS");
    }
    need(SectionKind::Entities, "ENTITIES");
}

}  // namespace dxf
