#include "desk/model/successor.h"

#include "basic/text.h"
#include "desk/dxf/tag_reader.h"

#include <algorithm>

namespace model {

namespace {

struct Word {
    std::string_view name;
    bool Keep::*member;
};
constexpr Word kWords[] = {{"layer", &Keep::layer},
                           {"colour", &Keep::color},
                           {"linetype", &Keep::lineType},
                           {"space", &Keep::space}};

constexpr std::string_view kCommonPart = "AcDbEntity";
constexpr int kLineType = 6;
constexpr int kLayer = 8;
constexpr int kColor = 62;

/// Empty where the entity has its layer's.
std::string lineTypeOf(const drawing::Drawing& drawing, drawing::EntityId id) {
    dxf::TagReader reader = drawing.tags(id);
    for (dxf::Tag tag; reader.next(tag) && tag.code != 2;) {
        if (tag.code == kLineType) return tag.text();
    }
    return {};
}

}  // namespace

std::string toText(const Keep& keep) {
    std::string text;
    for (const Word& word : kWords) {
        if (keep.*word.member) text.append(text.empty() ? "" : ",").append(word.name);
    }
    return text;
}

Keep parseKeep(std::string_view text) {
    Keep keep;
    while (!basic::trim(text).empty()) {
        const std::size_t comma = std::min(text.find(','), text.size());
        const std::string_view name = basic::trim(text.substr(0, comma));
        const Word* word = std::find_if(std::begin(kWords), std::end(kWords), [&](const Word& known) {
            return basic::equalIgnoringCase(known.name, name);
        });
        if (word == std::end(kWords))
            drawing::raise(drawing::kInvalidInput,
                           "\"" + std::string(name) + "\" is none of layer, colour, linetype, space");
        keep.*word->member = true;
        text.remove_prefix(std::min(comma + 1, text.size()));
    }
    return keep;
}

void handOver(const Context& context, drawing::EntityId old) {
    drawing::Drawing& drawing = *context.drawing;
    const Keep& keep = *context.environment->keep;
    const drawing::EntityId next = context.newest;
    if (!keep.any() || next == drawing::kNoEntity || next == old || drawing.isErased(next) ||
        drawing.isErased(old) || drawing.type(old) != "INSERT" ||
        !(drawing.insert(old).insertion == drawing.insert(next).insertion))
        return;
    const drawing::UndoStep step(drawing);
    const drawing::CommonData common = drawing.common(old);
    if (keep.color) drawing.setInteger(next, kColor, kCommonPart, common.color);
    const std::string lineType = lineTypeOf(drawing, old);
    if (keep.lineType) drawing.setText(next, kLineType, kCommonPart, lineType.empty() ? "ByLayer" : lineType);
    if (keep.space) drawing.moveToSpace(next, drawing.owner(old));
    // The layer comes last: on a locked one nothing else could be set.
    if (keep.layer) drawing.setText(next, kLayer, kCommonPart, common.layer);
}

}  // namespace model
