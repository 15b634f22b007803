#include "desk/drawing/creator.h"
#include "desk/drawing/drawing.h"
#include "desk/drawing/store.h"
#include "desk/dxf/tag_writer.h"

namespace drawing {

namespace {

void write(dxf::TagWriter& writer, int code, const HeaderValue& value) {
    if (const auto* text = std::get_if<std::string>(&value)) writer.text(code, *text);
    if (const auto* number = std::get_if<double>(&value)) writer.number(code, *number);
    if (const auto* integer = std::get_if<std::int64_t>(&value)) writer.integer(code, *integer);
    if (const auto* point = std::get_if<Point3>(&value)) writer.point(code, point->x, point->y, point->z);
}

}  // namespace

void Drawing::setVariable(std::string_view name, int code, const HeaderValue& value) {
    if (store_->outline.find(dxf::SectionKind::Header) == nullptr)
        raise(kInvalidInput, "the drawing has no section of variables");
    std::string bytes;
    dxf::TagWriter writer(store_->format(), bytes);
    write(writer, code, value);
    const HeaderVariables::Entry* before = header_.find(name);
    if (before != nullptr && before->bytes == bytes) return;
    const UndoStep step(*this);
    const auto tags = std::make_shared<const std::string>(std::move(bytes));
    store_->step().variables.emplace_back(name, header_.set(name, tags));
    creator_->forgetCurrent();
    noteChange();
}

}  // namespace drawing
