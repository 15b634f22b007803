// Real drawings: the ranges of the outline cover each file, and each survives the way to binary and back.

#include "support.h"

#include <cmath>

using namespace dxf;

namespace {

/// The next group that isn't a comment, of which binary drawings have none.
bool nextGroup(TagReader& reader, Tag& tag) {
    while (reader.next(tag))
        if (tag.code != kComment) return true;
    return false;
}

bool sameValue(const Tag& left, const Tag& right) {
    if (left.code != right.code) return false;
    switch (valueType(left.code)) {
        case ValueType::String:
        case ValueType::Handle:
            return left.text() == right.text();
        case ValueType::Double:
            return left.number() == right.number();
        case ValueType::Chunk:
            return left.text() == right.text();
        default:
            return left.integer() == right.integer();
    }
}

}  // namespace

TEST(Corpus, rangesCoverEachFile) {
    const std::vector<std::string> files = corpusFiles();
    if (files.empty()) GTEST_SKIP() << "no corpus beside the checkout";
    for (const std::string& path : files) {
        const Source source = Source::open(path);
        Findings findings;
        const Outline outline = readOutline(source.tags(), Mode::Lenient, findings);
        const std::string_view bytes = source.bytes();
        std::size_t at = 0;
        std::string joined;
        for (const Section& section : outline.sections) {
            ASSERT_LE(at, section.begin) << path;
            ASSERT_LE(section.bodyBegin, section.bodyEnd) << path;
            EXPECT_NE(bytes.substr(section.bodyEnd, section.end - section.bodyEnd).find("ENDSEC"),
                      std::string_view::npos);
            joined += bytes.substr(at, section.begin - at);
            joined += bytes.substr(section.begin, section.end - section.begin);
            at = section.end;
        }
        joined += bytes.substr(at);
        EXPECT_TRUE(joined == bytes) << path;
        EXPECT_TRUE(bytes.substr(outline.eof).find("EOF") < 6) << path;
        EXPECT_TRUE(outline.find(SectionKind::Entities) != nullptr) << path;
        for (const Finding& finding : findings.list()) ADD_FAILURE() << path << ": " << toText(finding);

        std::string copied;
        TagReader reader(source.tags());
        for (Tag tag; reader.next(tag);) copied += bytes.substr(tag.begin, tag.end - tag.begin);
        EXPECT_TRUE(copied == bytes) << path;
    }
}

TEST(Corpus, binaryAndBack) {
    const std::vector<std::string> files = corpusFiles();
    if (files.empty()) GTEST_SKIP() << "no corpus beside the checkout";
    for (const std::string& path : files) {
        const Source text = Source::open(path);
        Format format = text.format();
        format.binary = true;
        format.wideCodes = format.version >= Version::R13;
        const Source binary = Source::fromBytes(convert(text, format), path);
        ASSERT_EQ(binary.format().wideCodes, format.wideCodes) << path;
        ASSERT_EQ(binary.format().version, text.format().version) << path;
        TagReader left(text.tags());
        TagReader right(binary.tags());
        Tag expected;
        Tag got;
        while (nextGroup(left, expected)) {
            ASSERT_TRUE(nextGroup(right, got)) << path;
            ASSERT_TRUE(sameValue(expected, got)) << path << ":" << lineOf(text.bytes(), expected.begin)
                                                  << ": " << expected.text() << " / " << got.text();
        }
        EXPECT_FALSE(nextGroup(right, got)) << path;
        Findings findings;
        EXPECT_EQ(readOutline(binary.tags(), Mode::Strict, findings).sections.size(),
                  readOutline(text.tags(), Mode::Strict, findings).sections.size());
    }
}
