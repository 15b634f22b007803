// The damaged files of tests/faults, each with the error or the findings that it must give.

#include "support.h"

using namespace dxf;

namespace {

/// The account of a file: the error behind the file's name, or the findings one behind the other.
std::string account(const Source& source, Mode mode = Mode::Lenient) {
    Findings findings;
    const Outline outline = readOutline(source.tags(), mode, findings);
    findings.resolve(source.bytes(), source.format().binary);
    std::size_t at = 0;
    for (const Section& section : outline.sections) {
        EXPECT_TRUE(at <= section.begin && section.begin <= section.bodyBegin &&
                    section.bodyBegin <= section.bodyEnd && section.bodyEnd <= section.end &&
                    section.end <= source.bytes().size());
        at = section.end;
    }
    EXPECT_LE(at, outline.eof);
    std::string text;
    for (const Finding& finding : findings.list()) text += (text.empty() ? "" : "; ") + toText(finding);
    return text.empty() ? "clean" : text;
}

std::string accountOfFile(const std::string& name, Mode mode = Mode::Lenient) {
    const std::string path = VORLANE_ROOT "/tests/faults/" + name;
    try {
        return account(Source::open(path), mode);
    } catch (const ReadError& error) {
        EXPECT_EQ(error.number(), kInvalidFileFormat);
        return "ERROR" + error.description().substr(path.size());
    }
}

}  // namespace

TEST(Faults, eachFileIsToldApart) {
    const std::pair<const char*, const char*> rows[] = {
        {"picture.dxf", "ERROR: this is a PNG picture, not a DXF drawing"},
        {"drawing.dwg", "ERROR: this is a DWG drawing, not a DXF drawing"},
        {"empty.dxf", "ERROR: the file is empty, not a DXF drawing"},
        {"one_line.dxf", "ERROR: this has no lines of text and is no DXF drawing"},
        {"letter.dxf", "ERROR: this isn't a DXF drawing: it doesn't begin with a section"},
        {"shifted.dxf", "ERROR:23: a group code should stand here, not \"0.0\""},
        {"code_too_large.dxf", "ERROR:19: a group code should stand here, not \"99999\""},
        {"truncated_group.dxf", "ERROR:19: the file breaks off in section ENTITIES"},
        {"truncated_entities.dxf", "ERROR:21: the file breaks off in section ENTITIES"},
        {"truncated_blocks.dxf", "ERROR:21: the file breaks off in section BLOCKS"},
        {"unnamed_section.dxf", "ERROR:11: a section without a name"},
        {"binary_truncated.dxf", "ERROR: byte 50: the file breaks off in section ENTITIES"},
        {"binary_bad_code.dxf", "ERROR: byte 50: a group code should stand here"},
        {"binary_no_string_end.dxf", "ERROR: byte 43: the file breaks off in section ENTITIES"},
        {"truncated_objects.dxf",
         "L6 43: the file breaks off in section OBJECTS; R2 44: the file doesn't end with EOF"},
        {"no_eof.dxf", "R2 35: the file doesn't end with EOF"},
        {"no_endsec.dxf", "R1 33: section ENTITIES isn't ended by ENDSEC"},
        {"no_endsec_before_section.dxf", "R1 9: section HEADER isn't ended by ENDSEC"},
        {"no_entities.dxf", "K5 1: there is no section ENTITIES"},
        {"no_header.dxf", "K5 1: there is no section HEADER"},
        {"no_tables.dxf", "K5 1: there is no section TABLES"},
        {"two_entities.dxf", "K4 35: a second section ENTITIES"},
        {"stray_groups.dxf", "L1 11: groups outside any section are passed over"},
        {"odd_code.dxf", "K3 19: group code 2000 isn't one of the format's"},
        {"future_version.dxf", "K1 1: version \"AC1040\" is read as R2018"},
        {"unknown_code_page.dxf", "K2 1: code page \"ANSI_4711\" is read as ANSI_1252"},
        {"section_plane.dxf", "clean"},
        {"duplicate_handles.dxf", "clean"},  // told by whoever knows the entities
    };
    for (const auto& [name, expected] : rows) EXPECT_EQ(accountOfFile(name), expected);
}

TEST(Faults, strictReadingRaisesWhatLenientReadingLists) {
    EXPECT_EQ(accountOfFile("no_endsec.dxf", Mode::Strict),
              "ERROR:33: section ENTITIES isn't ended by ENDSEC");
    EXPECT_EQ(accountOfFile("no_eof.dxf", Mode::Strict), "ERROR:35: the file doesn't end with EOF");
    EXPECT_EQ(accountOfFile("section_plane.dxf", Mode::Strict), "clean");
}

TEST(Faults, hugeLines) {
    const std::string huge(100u << 20, '7');
    const std::string start = lines("0 SECTION 2 HEADER 0 ENDSEC 0 SECTION 2 ENTITIES 0 TEXT");
    EXPECT_EQ(account(Source::fromBytes(start + "1\n" + huge + "\n0\nENDSEC\n0\nEOF\n", "huge.dxf")),
              "clean");
    EXPECT_EQ(failureOf([&] { account(Source::fromBytes(start + huge + "\n0\nENDSEC\n", "huge.dxf")); }),
              "huge.dxf:13: a group code should stand here, not \"777777777777777777777777...\"");
    EXPECT_EQ(failureOf([&] { Source::fromBytes(huge, "huge.dxf"); }),
              "huge.dxf: this has no lines of text and is no DXF drawing");
}

// A drawing cut off at any byte, and one with any byte changed: an error or findings, never more.
TEST(Faults, anyCutAndAnyWrongByte) {
    const std::string whole =
        "\xEF\xBB\xBF" +
        lines(
            "999 x 0 SECTION 2 HEADER 9 $ACADVER 1 AC1015 9 $DWGCODEPAGE 3 ANSI_932 0 ENDSEC "
            "0 SECTION 2 ENTITIES 0 TEXT 5 1F 1 a\\U+00E9 310 00FF 0 ENDSEC 0 EOF");
    Format binaryFormat = detectFormat(whole, "a.dxf");
    binaryFormat.binary = true;
    const std::string binary = convert(Source::fromBytes(whole, "a.dxf"), binaryFormat);
    int errors = 0;
    int read = 0;
    const auto tryBytes = [&](const std::string& bytes) {
        const std::string failure = failureOf([&] {
            const Source source = Source::fromBytes(bytes, "a.dxf");
            account(source);
            groupTexts(source);
        });
        ++(failure.empty() ? read : errors);
        EXPECT_TRUE(failure.empty() || failure.starts_with("a.dxf")) << failure;
    };
    for (const std::string& good : {whole, binary}) {
        for (std::size_t size = 0; size < good.size(); ++size) tryBytes(good.substr(0, size));
        for (std::size_t at = 0; at < good.size(); ++at) {
            for (const char byte : {'\0', '\n', '9', '\xFF'}) {
                std::string bad = good;
                bad[at] = byte;
                tryBytes(bad);
            }
        }
    }
    EXPECT_GT(errors, 100);
    EXPECT_GT(read, 100);
}
