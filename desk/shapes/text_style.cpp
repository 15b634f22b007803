#include "desk/shapes/text_style.h"

#include "basic/text.h"
#include "desk/dxf/tag_reader.h"

namespace shapes {

TextStyles::TextStyles(const Drawing& drawing) {
    // Group 1071 of a TrueType style's extended data.
    constexpr std::int64_t kItalic = 0x1000000;
    constexpr std::int64_t kBold = 0x2000000;
    for (const EntityId id : drawing.tableEntries("STYLE")) {
        TextStyle style;
        std::string name;
        std::string family;
        bool isHost = false;
        std::int64_t flags = 0;
        dxf::TagReader reader = drawing.tags(id);
        for (dxf::Tag tag; reader.next(tag);) {
            if (tag.code == 2 && name.empty()) name = tag.text();
            if (tag.code == 3) family = tag.text();
            if (tag.code == 41 && tag.numberOr(1) > 0) style.widthFactor = tag.numberOr(1);
            if (tag.code == 50) style.oblique = radiansOf(tag.numberOr(0));
            if (tag.code == 1001) isHost = tag.raw == "ACAD";
            if (tag.code == 1000 && isHost && !tag.raw.empty()) family = tag.text();
            if (tag.code == 1071 && isHost) flags = tag.integerOr(0);
        }
        style.font = fontOfName(family);
        style.font.italic = style.font.italic || (flags & kItalic) != 0;
        style.font.bold = style.font.bold || (flags & kBold) != 0;
        byName_.emplace(basic::toUpper(name), style);
    }
}

const TextStyle& TextStyles::find(std::string_view name) const {
    const auto found = byName_.find(basic::toUpper(name.empty() ? "STANDARD" : name));
    return found == byName_.end() ? plain_ : found->second;
}

}  // namespace shapes
