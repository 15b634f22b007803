#include "faces/text/shown_controls.h"

#include <cstdio>

namespace text_face {

namespace {

constexpr char kLeadByte = '\xC2';

bool isControl(char byte) {
    const auto code = static_cast<unsigned char>(byte);
    return (code < 0x20 && byte != '\n' && byte != '\t') || code == 0x7F;
}

}  // namespace

ShownControls::~ShownControls() {
    if (behindC2_) put({&kLeadByte, 1});
    stream_.rdbuf(target_);
}

bool ShownControls::put(std::string_view text) {
    const auto size = static_cast<std::streamsize>(text.size());
    return target_->sputn(text.data(), size) == size;
}

/// One byte that may be part of a control character: "^[" for the first 32 and the last of ASCII, "\x9B" for
/// those behind.
bool ShownControls::take(char byte) {
    const auto code = static_cast<unsigned char>(byte);
    if (behindC2_) {
        behindC2_ = false;
        if (code >= 0x80 && code < 0xA0) {
            char shown[8];
            std::snprintf(shown, sizeof shown, "\\x%02X", static_cast<unsigned>(code));
            return put(shown);
        }
        if (!put({&kLeadByte, 1})) return false;
    }
    if (byte == kLeadByte) {
        behindC2_ = true;
        return true;
    }
    if (!isControl(byte)) return put({&byte, 1});
    const char shown[] = {'^', static_cast<char>(code ^ 0x40)};
    return put({shown, sizeof shown});
}

ShownControls::int_type ShownControls::overflow(int_type byte) {
    if (traits_type::eq_int_type(byte, traits_type::eof())) return traits_type::not_eof(byte);
    return take(traits_type::to_char_type(byte)) ? byte : traits_type::eof();
}

std::streamsize ShownControls::xsputn(const char* text, std::streamsize size) {
    std::streamsize done = 0;
    while (done < size) {
        std::streamsize plain = done;
        while (!behindC2_ && plain < size && !isControl(text[plain]) && text[plain] != kLeadByte) ++plain;
        if (plain > done) {
            const std::streamsize written = target_->sputn(text + done, plain - done);
            if (written != plain - done) return done + written;
            done = plain;
        } else if (!take(text[done++])) {
            return done - 1;
        }
    }
    return done;
}

int ShownControls::sync() { return target_->pubsync(); }

}  // namespace text_face
