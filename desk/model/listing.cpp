#include "desk/model/listing.h"

#include "basic/numbers.h"
#include "basic/text.h"

#include <iomanip>
#include <ostream>
#include <sstream>

namespace model {

namespace {

/// Calls `visit` with each reference of model space and the layouts.
template <typename Visit>
void forEachReference(const drawing::Drawing& drawing, Visit&& visit) {
    const drawing::BlockTable& blocks = drawing.blocks();
    for (drawing::BlockId space = 0; space < blocks.size(); ++space) {
        if (blocks[space].isErased || !blocks[space].isLayout()) continue;
        drawing.forEachEntity(space, [&](drawing::EntityId id) {
            if (drawing.type(id) == "INSERT") visit(id, blocks[space]);
            return true;
        });
    }
}

}  // namespace

BlockListing listBlocks(const drawing::Drawing& drawing) {
    const drawing::BlockTable& blocks = drawing.blocks();
    std::vector<std::size_t> counts(blocks.size());
    forEachReference(drawing, [&](drawing::EntityId id, const drawing::Block&) {
        const drawing::BlockId block = blocks.find(drawing.name(id));
        if (block != drawing::kNoBlock) ++counts[block];
    });
    BlockListing listing;
    for (drawing::BlockId id = 0; id < blocks.size(); ++id) {
        if (blocks[id].isErased || blocks[id].isLayout()) continue;
        if (blocks[id].isAnonymous() && counts[id] == 0) {
            ++listing.anonymous;
        } else {
            listing.lines.push_back({blocks[id].name, counts[id], blocks[id].isXRef()});
        }
    }
    return listing;
}

void printBlocks(std::ostream& output, const drawing::Drawing& drawing) {
    const BlockListing listing = listBlocks(drawing);
    output << "References  Block\n";
    for (const BlockLine& line : listing.lines) {
        output << std::setw(10) << line.references << "  " << line.name
               << (line.isXRef ? " (external reference)" : "") << "\n";
    }
    if (listing.anonymous > 0)
        output << "and " << listing.anonymous << " without name or references (of dimensions and the like)\n";
}

std::vector<ReferenceLine> listReferences(const drawing::Drawing& drawing, std::string_view block) {
    const basic::Regional english = basic::Regional::english();
    std::vector<ReferenceLine> lines;
    forEachReference(drawing, [&](drawing::EntityId id, const drawing::Block& space) {
        if (!basic::equalIgnoringCase(drawing.name(id), block)) return;
        const geometry::Point3 point = drawing.insert(id).insertion;
        ReferenceLine line;
        std::ostringstream handle;
        handle << std::hex << std::uppercase << drawing.handle(id);
        line.handle = handle.str();
        line.layout = space.shownLayoutName();
        line.layer = drawing.layerName(id);
        line.x = basic::toText(point.x, english);
        line.y = basic::toText(point.y, english);
        line.z = basic::toText(point.z, english);
        for (const drawing::EntityId attribute : drawing.attributes(id)) {
            line.attributes.append(line.attributes.empty() ? "" : "  ")
                .append(drawing.attributeTag(attribute))
                .append("=")
                .append(drawing.attributeText(attribute));
        }
        lines.push_back(std::move(line));
    });
    return lines;
}

}  // namespace model
