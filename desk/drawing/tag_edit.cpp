#include "desk/drawing/tag_edit.h"

#include <algorithm>

namespace drawing {

void TagEdit::note(int code, std::string_view subclass, std::size_t begin) {
    edits_.push_back(
        {code, format_.hasSubclasses() ? subclass : std::string_view(), begin, values_.size(), false});
}

void TagEdit::text(int code, std::string_view subclass, std::string_view utf8) {
    const std::size_t begin = values_.size();
    writer_.text(code, utf8);
    note(code, subclass, begin);
}

void TagEdit::number(int code, std::string_view subclass, double value) {
    const std::size_t begin = values_.size();
    writer_.number(code, value);
    note(code, subclass, begin);
}

void TagEdit::integer(int code, std::string_view subclass, std::int64_t value) {
    const std::size_t begin = values_.size();
    writer_.integer(code, value);
    note(code, subclass, begin);
}

void TagEdit::handle(int code, std::string_view subclass, Handle value) {
    const std::size_t begin = values_.size();
    writer_.handle(code, value);
    note(code, subclass, begin);
}

void TagEdit::point(int code, std::string_view subclass, const Point3& value) {
    number(code, subclass, value.x);
    number(code + 10, subclass, value.y);
    number(code + 20, subclass, value.z);
}

void TagEdit::remove(int code, std::string_view subclass) { note(code, subclass, values_.size()); }

void TagEdit::flush(std::string_view subclass, bool all) {
    for (Edit& edit : edits_) {
        if (edit.done || (!all && (edit.subclass.empty() || edit.subclass != subclass))) continue;
        result_.append(values_, edit.begin, edit.end - edit.begin);
        edit.done = true;
    }
}

std::string_view TagEdit::apply(std::string_view entity) {
    result_.clear();
    std::string_view subclass;
    bool inBraces = false;
    std::size_t copied = 0;  // how much of the entity stands in the result or was replaced
    const auto copyUpTo = [&](std::size_t end) {
        result_.append(entity, copied, end - copied);
        copied = end;
    };
    dxf::TagReader reader({entity, &format_, {}}, 0, entity.size());
    for (dxf::Tag tag; reader.next(tag);) {
        if (tag.code == 102) inBraces = tag.raw.starts_with('{');
        if (inBraces) continue;
        if (tag.code == 101 || tag.code >= 1000) {
            copyUpTo(tag.begin);
            flush(subclass, true);
            break;
        }
        if (tag.code == 100) {
            copyUpTo(tag.begin);
            flush(subclass, false);
            subclass = tag.raw;
        } else if (Edit* edit = find(tag.code, subclass)) {
            copyUpTo(tag.begin);
            result_.append(values_, edit->begin, edit->end - edit->begin);
            copied = tag.end;
            edit->done = true;
        }
    }
    if (pending()) {
        copyUpTo(entity.size());
        flush(subclass, true);
    }
    copyUpTo(entity.size());
    clear();
    return result_;
}

std::string_view TagEdit::applyAt(std::string_view entity, std::size_t begin, std::size_t end) {
    result_.assign(entity, 0, begin);
    result_ += values_;
    result_ += entity.substr(end);
    clear();
    return result_;
}

void TagEdit::clear() {
    values_.clear();
    edits_.clear();
}

TagEdit::Edit* TagEdit::find(int code, std::string_view subclass) {
    for (Edit& edit : edits_) {
        const bool fits = edit.subclass.empty() || edit.subclass == subclass;
        if (!edit.done && edit.code == code && fits) return &edit;
    }
    return nullptr;
}

bool TagEdit::pending() const {
    return std::any_of(edits_.begin(), edits_.end(), [](const Edit& edit) { return !edit.done; });
}

}  // namespace drawing
