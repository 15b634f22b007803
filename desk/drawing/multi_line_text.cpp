#include "desk/drawing/multi_line_text.h"

#include "basic/text.h"
#include "desk/dxf/tag_reader.h"
#include "desk/dxf/tag_writer.h"

namespace drawing {

namespace {

constexpr std::size_t kChunk = 250;  ///< characters of a text that go into one group

/// Copies the groups; inside the embedded object `replace` writes a group's successor itself and tells so.
template <typename Replace>
std::string rewriteEmbedded(const dxf::Format& format, std::string_view attribute, Replace&& replace) {
    std::string result;
    dxf::TagWriter writer(format, result);
    bool inside = false;
    dxf::TagReader reader({attribute, &format, {}}, 0, attribute.size());
    for (dxf::Tag tag; reader.next(tag);) {
        if (tag.code == 101) inside = true;
        if (tag.code >= 1000) inside = false;
        if (!inside || !replace(tag, writer)) writer.raw(attribute.substr(tag.begin, tag.end - tag.begin));
    }
    return result;
}

void writeText(dxf::TagWriter& writer, std::string_view text) {
    for (;;) {
        std::size_t end = 0;
        for (std::size_t count = 0; count < kChunk && end < text.size(); ++count)
            basic::nextCharacter(text, end);
        if (end == text.size()) break;
        writer.text(3, text.substr(0, end));
        text.remove_prefix(end);
    }
    writer.text(1, text);
}

}  // namespace

std::string withEmbeddedText(const dxf::Format& format, std::string_view attribute, std::string_view text) {
    return rewriteEmbedded(format, attribute, [&](const dxf::Tag& tag, dxf::TagWriter& writer) {
        if (tag.code == 1) writeText(writer, text);
        return tag.code == 1 || tag.code == 3;
    });
}

std::string withEmbeddedPosition(const dxf::Format& format, std::string_view attribute,
                                 const Point3& position) {
    return rewriteEmbedded(format, attribute, [&](const dxf::Tag& tag, dxf::TagWriter& writer) {
        if (tag.code == 10) writer.number(10, position.x);
        if (tag.code == 20) writer.number(20, position.y);
        if (tag.code == 30) writer.number(30, position.z);
        return tag.code == 10 || tag.code == 20 || tag.code == 30;
    });
}

}  // namespace drawing
