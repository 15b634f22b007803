#include "desk/dxf/code_page_converter.h"

#include <iconv.h>
#include <string>

namespace dxf {

struct CodePageConverter::System {
    iconv_t handle;
};

CodePageConverter::CodePageConverter(std::string_view name)
    : system_(std::make_unique<System>(System{iconv_open("UTF-16LE", std::string(name).c_str())})) {}

CodePageConverter::~CodePageConverter() {
    if (isOpen()) iconv_close(system_->handle);
}

bool CodePageConverter::isOpen() const {
    // POSIX says "no converter" by that very value. NOLINTNEXTLINE(performance-no-int-to-ptr)
    return system_->handle != reinterpret_cast<iconv_t>(-1);
}

char16_t CodePageConverter::character(std::string_view bytes) {
    if (!isOpen()) return 0;
    char in[2] = {bytes[0], bytes.size() > 1 ? bytes[1] : '\0'};
    unsigned char out[8];
    char* inAt = in;
    char* outAt = reinterpret_cast<char*>(out);
    std::size_t inLeft = bytes.size();
    std::size_t outLeft = sizeof out;
    iconv(system_->handle, nullptr, nullptr, nullptr, nullptr);
    const bool converted = iconv(system_->handle, &inAt, &inLeft, &outAt, &outLeft) == 0;
    // Pages with combining accents hold a letter back until they are told that no more comes.
    iconv(system_->handle, nullptr, nullptr, &outAt, &outLeft);
    if (!converted || inLeft != 0 || outLeft != sizeof out - 2) return 0;
    return static_cast<char16_t>(out[0] | (out[1] << 8));
}

}  // namespace dxf
