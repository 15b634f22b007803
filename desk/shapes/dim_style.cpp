#include "desk/shapes/dim_style.h"

#include "basic/text.h"
#include "desk/shapes/read_tags.h"

#include <string>

namespace shapes {

namespace {

/// Groups of a style's record, which its overrides name too.
enum : std::int64_t { kScale = 40, kArrow = 41, kText = 140 };

void take(std::int64_t code, double value, DimStyle& style, double& scale) {
    if (code == kScale) scale = value;
    if (code == kArrow) style.arrow = value;
    if (code == kText) style.text = value;
}

}  // namespace

DimStyle readDimStyle(const Drawing& drawing, EntityId id) {
    DimStyle style;
    style.arrow = drawing.header().number("$DIMASZ").value_or(style.arrow);
    style.text = drawing.header().number("$DIMTXT").value_or(style.text);
    double scale = drawing.header().number("$DIMSCALE").value_or(1);
    std::string name;
    forEachTag(drawing.tags(id), [&](const dxf::Tag& tag) {
        if (tag.code == 3) name = tag.text();
    });
    for (const EntityId record : drawing.tableEntries("DIMSTYLE")) {
        if (!basic::equalIgnoringCase(drawing.name(record), name)) continue;
        forEachTag(drawing.tags(record),
                   [&](const dxf::Tag& tag) { take(tag.code, tag.numberOr(0), style, scale); });
    }
    // Overrides stand in pairs behind "DSTYLE": the code (1070), then the value.
    bool isOverride = false;
    std::int64_t code = 0;
    dxf::TagReader tags = drawing.tags(id);
    for (dxf::Tag tag; tags.next(tag);) {
        if (tag.code == 1001) isOverride = false;
        if (tag.code == 1000 && tag.raw == "DSTYLE") isOverride = true;
        if (!isOverride) continue;
        if (tag.code == 1070) code = tag.integerOr(0);
        if (tag.code == 1040) take(code, tag.numberOr(0), style, scale);
    }
    if (scale > 0) {
        style.arrow *= scale;
        style.text *= scale;
    }
    return style;
}

}  // namespace shapes
