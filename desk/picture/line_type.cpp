#include "desk/picture/line_type.h"

#include "basic/text.h"
#include "desk/drawing/drawing.h"
#include "desk/dxf/tag_reader.h"

#include <cmath>

namespace picture {

LineTypes::LineTypes(const Drawing& drawing) : all_(1) {
    for (const EntityId id : drawing.tableEntries("LTYPE")) {
        std::string name;
        LineType type;
        dxf::TagReader reader = drawing.tags(id);
        for (dxf::Tag tag; reader.next(tag) && tag.code < 1000;) {
            if (tag.code == 2 && name.empty()) name = tag.text();
            if (tag.code == 49) type.elements.push_back(tag.numberOr(0));
        }
        for (const double element : type.elements) type.length += std::abs(element);
        if (!(type.length > 0)) continue;
        byName_.emplace(basic::toUpper(name), static_cast<Number>(all_.size()));
        all_.push_back(std::move(type));
    }
    scale_ = drawing.header().number("$LTSCALE").value_or(1);
    if (!(scale_ > 0)) scale_ = 1;
}

LineTypes::Number LineTypes::find(std::string_view name) const {
    const auto found = byName_.find(basic::toUpper(name));
    return found == byName_.end() ? Number{0} : found->second;
}

}  // namespace picture
