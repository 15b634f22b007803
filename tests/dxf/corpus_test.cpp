// Real drawings: each is read strictly, and survives the way to binary and back.

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
    const ValueType type = valueType(left.code);
    if (type == ValueType::Double) return left.number() == right.number();
    const bool isText =
        type == ValueType::String || type == ValueType::HandleText || type == ValueType::Chunk;
    return isText ? left.text() == right.text() : left.integer() == right.integer();
}

}  // namespace

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
