#include "desk/drawing/attribute_text.h"

#include "basic/text.h"
#include "desk/dxf/tag_reader.h"

#include <cmath>

namespace drawing {

namespace {

/// About how wide a line is in an upright sans-serif, in capital heights.
double widthOf(std::string_view line) {
    static constexpr std::u32string_view kNarrow = U"iljtfrI.,;:'!|()[] ";
    static constexpr std::u32string_view kWide = U"mwMWOQG@%";
    double width = 0;
    for (std::size_t at = 0; at < line.size();) {
        const char32_t character = basic::nextCharacter(line, at);
        const bool isNarrow = kNarrow.find(character) != std::u32string_view::npos;
        const bool isWide = kWide.find(character) != std::u32string_view::npos;
        width += isNarrow ? 0.45 : isWide ? 1.1 : 0.8;
    }
    return width;
}

}  // namespace

TextPlace findText(const dxf::Format& format, std::string_view attribute) {
    TextPlace place;
    bool inText = !format.hasSubclasses();
    bool inBraces = false;
    dxf::TagReader reader({attribute, &format, {}}, 0, attribute.size());
    for (dxf::Tag tag; reader.next(tag) && tag.code < 1000;) {
        if (tag.code == 102) inBraces = tag.raw.starts_with('{');
        if (inBraces) continue;
        if (tag.code == 100) {
            inText = tag.raw == "AcDbText";
            if (!inText && place.end != 0 && format.version < dxf::Version::R2018) break;
        } else if (tag.code == 101) {
            place.isEmbedded = format.version >= dxf::Version::R2018;
            break;
        } else if (inText && tag.code == 1 && place.end == 0) {
            place.begin = tag.begin;
            place.end = tag.end;
        } else if (inText && tag.code == 72) {
            place.horizontal = static_cast<int>(tag.integerOr(0));
        }
    }
    return place;
}

Point3 firstPointFor(const AttribData& attribute, std::string_view text) {
    Vector3 along{std::cos(attribute.rotation), std::sin(attribute.rotation), 0};
    if ((attribute.generation & 2) != 0) along = -along;  // it runs backwards
    const double share = attribute.horizontal == 2 ? 1 : 0.5;
    const double before = dot(attribute.alignment - attribute.position, along) / share;
    const double guess = widthOf(attribute.text);
    const double pitch =
        before > 0 && guess > 0 ? before / guess : attribute.height * std::abs(attribute.widthFactor);
    return attribute.position + along * (share * (before - pitch * widthOf(text)));
}

}  // namespace drawing
