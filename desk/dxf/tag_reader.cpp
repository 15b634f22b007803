#include "desk/dxf/tag_reader.h"

namespace dxf {

namespace {

/// How many bytes a binary value of fixed length has; 0 for the others.
std::size_t fixedSize(ValueType type) {
    switch (type) {
        case ValueType::Double:
        case ValueType::Int64:
            return 8;
        case ValueType::Int32:
            return 4;
        case ValueType::Int16:
            return 2;
        case ValueType::Bool:
            return 1;
        default:
            return 0;
    }
}

int twoBytes(const char* at) {
    return static_cast<std::int16_t>(static_cast<unsigned char>(at[0]) | static_cast<unsigned char>(at[1])
                                                                             << 8);
}

}  // namespace

void TagSource::fail(std::size_t offset, std::string_view what) const {
    std::string text(path);
    if (format != nullptr && format->binary)
        text += ": byte " + std::to_string(offset);
    else
        text += (text.empty() ? "line " : ":") + std::to_string(lineOf(bytes, offset));
    throw ReadError(kInvalidFileFormat, text + ": " + std::string(what));
}

void TagReader::fail(Step step) const {
    const std::size_t size = static_cast<std::size_t>(end_ - source_.bytes.data());
    if (step == Step::CutOff) source_.fail(position(), "the file ends in the middle of a group");
    if (binary_) source_.fail(position(), "a group code should stand here");
    const std::string_view rest = source_.bytes.substr(position(), size - position());
    std::string_view line = rest.substr(0, std::min(rest.find('\n'), rest.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    source_.fail(position(), "a group code should stand here, not " + quoted(line));
}

TagReader::Step TagReader::advanceBinary(Tag& tag) {
    const char* p = position_;
    const auto left = [&] { return static_cast<std::size_t>(end_ - p); };
    if (p == end_) return Step::End;
    int code = 0;
    if (source_.format->wideCodes || *p == '\xFF') {
        if (!source_.format->wideCodes) ++p;  // the escape before a code beyond one byte
        if (left() < 2) return Step::CutOff;
        code = twoBytes(p);
        p += 2;
    } else {
        code = static_cast<unsigned char>(*p++);
    }
    // The code decides how long the value is, so an unknown one ends all reading.
    if (!isValidCode(code)) return Step::BadCode;

    const ValueType type = valueType(code);
    std::size_t size = fixedSize(type);
    std::size_t behind = 0;
    if (type == ValueType::Chunk) {
        if (p == end_) return Step::CutOff;
        size = static_cast<unsigned char>(*p++);
    } else if (size == 0) {
        const void* const zero = std::memchr(p, 0, left());
        if (zero == nullptr) return Step::CutOff;
        size = static_cast<std::size_t>(static_cast<const char*>(zero) - p);
        behind = 1;
    }
    if (left() < size + behind) return Step::CutOff;
    tag.code = code;
    tag.raw = std::string_view(p, size);
    tag.begin = position();
    position_ = p + size + behind;
    tag.end = position();
    tag.format = source_.format;
    return Step::Group;
}

}  // namespace dxf
