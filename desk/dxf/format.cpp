#include "desk/dxf/format.h"

#include "desk/dxf/tag_reader.h"

#include <optional>

namespace dxf {

namespace {

struct Signature {
    std::string_view bytes;
    std::string_view what;
};

/// How files begin that people take for DXF drawings.
constexpr Signature kSignatures[] = {
    {"AC10", "a DWG drawing"},      {"AC1.", "a DWG drawing"},    {"AC2.", "a DWG drawing"},
    {"MC0.0", "a DWG drawing"},     {"\x89PNG", "a PNG picture"}, {"\xFF\xD8\xFF", "a JPEG picture"},
    {"GIF8", "a GIF picture"},      {"%PDF", "a PDF document"},   {"PK\x03\x04", "a ZIP archive"},
    {"\x1F\x8B", "a GZIP archive"}, {"\xFF\xFE", "UTF-16 text"},  {"\xFE\xFF", "UTF-16 text"},
    {"AutoCAD DXB", "a DXB file"},  {"<?xml", "an XML document"}, {"(DWF V", "a DWF drawing"},
};

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

[[noreturn]] void failAsForeign(std::string_view path, const std::string& why) {
    throw ReadError(kInvalidFileFormat, std::string(path) + ": " + why);
}

void refuseOtherFormats(std::string_view bytes, std::string_view path) {
    if (bytes.empty()) failAsForeign(path, "the file is empty, not a DXF drawing");
    for (const Signature& signature : kSignatures)
        if (bytes.starts_with(signature.bytes))
            failAsForeign(path, "this is " + std::string(signature.what) + ", not a DXF drawing");
}

Format binaryFormat(std::string_view bytes) {
    Format format;
    format.binary = true;
    format.start = kBinarySentinel.size();
    // The first group is 0 SECTION: behind a code of one byte its name begins at once. A comment (999,
    // hexadecimal 3E7) can only begin a file as a code of two bytes or behind the escape.
    const std::string_view groups = bytes.substr(format.start);
    format.wideCodes = groups.size() < 2 || groups.substr(0, 2) == std::string_view("\0\0", 2) ||
                       groups.substr(0, 2) == std::string_view("\xE7\x03", 2);
    return format;
}

Format textFormat(std::string_view bytes, std::string_view path) {
    Format format;
    if (bytes.starts_with(kByteOrderMark)) format.start = kByteOrderMark.size();
    const std::size_t newline = bytes.find('\n');
    if (newline == std::string_view::npos)
        failAsForeign(path, "this has no lines of text and is no DXF drawing");
    format.carriageReturns = newline > 0 && bytes[newline - 1] == '\r';
    return format;
}

/// Goes to the first group that isn't a comment, which begins the first section in every drawing.
void checkBeginning(TagReader& reader, Format& format, std::string_view path) {
    Tag tag;
    TagReader::Step step;
    do {
        step = reader.advance(tag);
    } while (step == TagReader::Step::Group && tag.code == kComment);
    if (step != TagReader::Step::Group || (!tag.starts("SECTION") && !tag.starts("EOF")))
        failAsForeign(path, "this isn't a DXF drawing: it doesn't begin with a section");
    format.paddedCodes = !format.binary && reader.source().bytes[tag.begin] == ' ';
    reader.seek(tag.begin);
}

/// Takes version, code page and the habit of writing integers from the HEADER section, if that is the first
/// one. What is wrong in it is left to the scanner.
void readHeader(TagReader& reader, Format& format) {
    Tag tag;
    const auto next = [&] { return reader.advance(tag) == TagReader::Step::Group; };
    if (!next() || !next() || tag.code != 2 || tag.raw != "HEADER") return;
    bool sawInteger = false;
    while (next() && tag.code != 0) {
        if (tag.code == 9 && tag.raw == "$ACADVER") {
            if (next()) format.versionName = tag.raw;
        } else if (tag.code == 9 && tag.raw == "$DWGCODEPAGE") {
            if (next()) format.codePageName = tag.raw;
        } else if (!sawInteger && valueType(tag.code) == ValueType::Int16 && !format.binary) {
            sawInteger = true;
            format.paddedIntegers = tag.raw.starts_with(' ');
        }
    }
}

}  // namespace

Format detectFormat(std::string_view bytes, std::string_view path) {
    refuseOtherFormats(bytes, path);
    Format format = bytes.starts_with(kBinarySentinel) ? binaryFormat(bytes) : textFormat(bytes, path);
    TagReader reader(TagSource{bytes, &format, path});
    checkBeginning(reader, format, path);
    readHeader(reader, format);
    format.version = versionFromText(format.versionName);
    if (format.version >= Version::R2007)
        format.encoding = Encoding();
    else if (!format.codePageName.empty())
        format.encoding = Encoding::codePage(format.codePageName);
    return format;
}

}  // namespace dxf
