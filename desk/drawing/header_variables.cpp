#include "desk/drawing/header_variables.h"

#include "basic/text.h"
#include "desk/dxf/tag_reader.h"

#include <utility>

namespace drawing {

namespace {

std::optional<dxf::Tag> firstTag(const HeaderVariables::Entry* entry, const dxf::Format* format) {
    if (entry == nullptr) return std::nullopt;
    dxf::TagReader reader({entry->bytes, format, {}}, 0, entry->bytes.size());
    dxf::Tag tag;
    return reader.next(tag) ? std::optional(tag) : std::nullopt;
}

const HeaderVariables::Entry* entryOf(const std::vector<HeaderVariables::Entry>& entries,
                                      std::string_view name) {
    for (const HeaderVariables::Entry& entry : entries) {
        if (basic::NameEqual{}(entry.name, name)) return &entry;
    }
    return nullptr;
}

}  // namespace

const HeaderVariables::Entry* HeaderVariables::findInFile(std::string_view name) const {
    return entryOf(entries_, name);
}

const HeaderVariables::Entry* HeaderVariables::find(std::string_view name) const {
    const Entry* changed = entryOf(changes_, name);
    return changed != nullptr ? changed : findInFile(name);
}

HeaderVariables::Value HeaderVariables::set(std::string_view name, Value value) {
    const Entry* found = entryOf(changes_, name);
    const auto index = static_cast<std::size_t>(found == nullptr ? changes_.size() : found - changes_.data());
    if (found == nullptr) {
        if (!value) return nullptr;
        names_.push_back(std::make_shared<const std::string>(name));
        values_.emplace_back();
        changes_.push_back({*names_.back(), {}});
    }
    Value before = std::exchange(values_[index], std::move(value));
    if (values_[index]) {
        changes_[index].bytes = *values_[index];
    } else {
        const auto at = static_cast<std::ptrdiff_t>(index);
        changes_.erase(changes_.begin() + at);
        names_.erase(names_.begin() + at);
        values_.erase(values_.begin() + at);
    }
    return before;
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

int HeaderVariables::code(std::string_view name) const {
    const auto tag = firstTag(find(name), format_);
    return tag ? tag->code : -1;
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
