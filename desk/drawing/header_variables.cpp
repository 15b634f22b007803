#include "desk/drawing/header_variables.h"

#include "basic/text.h"
#include "desk/dxf/tag_reader.h"

namespace drawing {

namespace {

std::optional<dxf::Tag> firstTag(const HeaderVariables::Entry* entry, const dxf::Format* format) {
    if (entry == nullptr) return std::nullopt;
    dxf::TagReader reader({entry->bytes, format, {}}, 0, entry->bytes.size());
    dxf::Tag tag;
    return reader.next(tag) ? std::optional(tag) : std::nullopt;
}

}  // namespace

const HeaderVariables::Entry* HeaderVariables::find(std::string_view name) const {
    for (const Entry& entry : entries_) {
        if (basic::NameEqual{}(entry.name, name)) return &entry;
    }
    return nullptr;
}

std::optional<std::string> HeaderVariables::text(std::string_view name) const {
    const auto tag = firstTag(find(name), format_);
    return tag ? std::optional(tag->text()) : std::nullopt;
}

std::optional<double> HeaderVariables::number(std::string_view name) const {
    const auto tag = firstTag(find(name), format_);
    return tag ? std::optional(tag->numberOr(0)) : std::nullopt;
}

std::optional<int> HeaderVariables::integer(std::string_view name) const {
    const auto tag = firstTag(find(name), format_);
    return tag ? std::optional(static_cast<int>(tag->integerOr(0))) : std::nullopt;
}

std::optional<Point3> HeaderVariables::point(std::string_view name) const {
    const Entry* entry = find(name);
    if (entry == nullptr) return std::nullopt;
    dxf::TagReader reader({entry->bytes, format_, {}}, 0, entry->bytes.size());
    Point3 point;
    for (dxf::Tag tag; reader.next(tag);) {
        if (tag.code == 10) point.x = tag.numberOr(0);
        if (tag.code == 20) point.y = tag.numberOr(0);
        if (tag.code == 30) point.z = tag.numberOr(0);
    }
    return point;
}

}  // namespace drawing
