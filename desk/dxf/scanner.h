#pragma once

#include "desk/dxf/findings.h"
#include "desk/dxf/tag_reader.h"

#include <array>
#include <string_view>
#include <vector>

namespace dxf {

enum class SectionKind { Header, Classes, Tables, Blocks, Entities, Objects, Thumbnail, AcdsData, Unknown };

SectionKind sectionKind(std::string_view name);

/// A section as a range of the file, from its SECTION group to behind its ENDSEC group.
struct Section {
    SectionKind kind = SectionKind::Unknown;
    std::string_view name;
    std::size_t begin = 0;
    std::size_t bodyBegin = 0;  ///< behind the group with the section's name
    std::size_t bodyEnd = 0;    ///< at the ENDSEC group, or where the section stops without one
    std::size_t end = 0;
};

/// The sections in the order of the file. What stands before, between and behind them (comments, the EOF
/// group, what follows it) is what their ranges leave over.
struct Outline {
    std::vector<Section> sections;
    std::size_t eof = 0;  ///< offset of the EOF group, or the number of bytes where there is none

    /// The first section of a kind, or null.
    const Section* find(SectionKind kind) const;
};

/// Strict reading raises a ReadError where lenient reading makes a repair or goes on, and lists a finding.
enum class Mode { Strict, Lenient };

/// What `Scanner::next` came upon.
enum class Event {
    SectionBegin,  ///< the tag is the group with the section's name (code 2); the outline has the section
    Object,        ///< a group 0 inside a section: an entity, table, table record, block, object begins
    Value,         ///< any other group inside a section
    SectionEnd,    ///< the tag is the ENDSEC group, or an empty range where it is missing
    End,           ///< the tag is the EOF group, or an empty range at the end of the bytes
};

/// The one pass over a file: hands out its groups and builds the outline on the way, so that whoever opens a
/// drawing collects all else in the same pass. Comments (999) aren't handed out.
///
///     for (Event event; (event = scanner.next(tag)) != Event::End;) ...
class Scanner {
  public:
    Scanner(const TagSource& source, Mode mode, Findings& findings);

    /// The next event. Raises ReadErrors about bad group codes, a section without name, a file that ends in
    /// the midst of a section that the drawing can't do without, and in strict mode about all findings.
    Event next(Tag& tag) {
        for (;;) {
            const TagReader::Step step = reader_.advance(tag);
            if (step != TagReader::Step::Group) [[unlikely]]
                return outOfGroups(step, tag);
            if (tag.code == kComment) continue;
            if (!inSection_) return betweenSections(tag);
            if (tag.code != 0) [[likely]] {
                if (!isValidCode(tag.code)) [[unlikely]]
                    oddCode(tag);
                return Event::Value;
            }
            if (mayEndSection(tag.raw)) [[unlikely]]
                return structure(tag);
            return Event::Object;
        }
    }

    /// The section that the last event belongs to.
    SectionKind section() const { return kind_; }
    const Outline& outline() const { return outline_; }
    Outline takeOutline() { return std::move(outline_); }

    /// In strict mode raises the ReadError, in lenient mode lists a finding. For the scanner's driver too.
    void report(std::size_t offset, Handle handle, FindingKind kind, std::string reason);

  private:
    static bool mayEndSection(std::string_view name) {
        return name == "ENDSEC" || name == "SECTION" || name == "EOF";
    }
    Event structure(Tag& tag);
    Event betweenSections(Tag& tag);
    Event beginSection(Tag& tag);
    Event endSection(std::size_t bodyEnd, std::size_t end);
    Event outOfGroups(TagReader::Step step, Tag& tag);
    Event finish(Tag& tag);
    void oddCode(const Tag& tag);
    void reportMissingSections();

    TagReader reader_;
    Mode mode_;
    Findings& findings_;
    Outline outline_;
    SectionKind kind_ = SectionKind::Unknown;
    bool inSection_ = false;
    bool strayReported_ = false;
    /// Where the whole groups of a file end that breaks off.
    std::size_t wholeEnd_ = static_cast<std::size_t>(-1);
};

}  // namespace dxf
