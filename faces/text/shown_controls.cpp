#include "faces/text/shown_controls.h"

#include "basic/shown_text.h"

#include <algorithm>

namespace text_face {

namespace {

bool isPlain(char byte) {
    const auto code = static_cast<unsigned char>(byte);
    return byte == '\n' || byte == '\t' || (code >= 0x20 && code < 0x7F);
}

/// How many bytes at the end of a text begin a character that isn't whole.
std::size_t openEnd(std::string_view text) {
    for (std::size_t count = 1; count <= 3 && count <= text.size(); ++count) {
        const auto code = static_cast<unsigned char>(text[text.size() - count]);
        if (code >= 0xC0) return count < (code >= 0xF0 ? 4U : code >= 0xE0 ? 3U : 2U) ? count : 0;
        if (code < 0x80) return 0;
    }
    return 0;
}

}  // namespace

ShownControls::~ShownControls() {
    put(held_);
    stream_.rdbuf(target_);
}

bool ShownControls::put(std::string_view text) {
    const auto size = static_cast<std::streamsize>(text.size());
    return target_->sputn(text.data(), size) == size;
}

ShownControls::int_type ShownControls::overflow(int_type byte) {
    if (traits_type::eq_int_type(byte, traits_type::eof())) return traits_type::not_eof(byte);
    const char taken = traits_type::to_char_type(byte);
    return xsputn(&taken, 1) == 1 ? byte : traits_type::eof();
}

std::streamsize ShownControls::xsputn(const char* text, std::streamsize size) {
    if (held_.empty() && std::all_of(text, text + size, isPlain)) return target_->sputn(text, size);
    held_.append(text, static_cast<std::size_t>(size));
    const std::string open = held_.substr(held_.size() - openEnd(held_));
    held_.resize(held_.size() - open.size());
    const bool done = put(basic::shownText(held_));
    held_ = open;
    return done ? size : 0;
}

int ShownControls::sync() { return target_->pubsync(); }

}  // namespace text_face
