#pragma once

#include <functional>
#include <ostream>
#include <streambuf>
#include <string>
#include <utility>

namespace window {

/// Hands on whole lines as they are written.
class LineBuffer : public std::streambuf {
  public:
    using Tell = std::function<void(const std::string& line)>;

    explicit LineBuffer(Tell tell) : tell_(std::move(tell)) {}

    /// Hands on what stands behind the last line's end.
    void finishLine() {
        if (!line_.empty()) tell_(std::exchange(line_, {}));
    }

  private:
    int_type overflow(int_type sign) override {
        if (traits_type::eq_int_type(sign, traits_type::eof())) return traits_type::not_eof(sign);
        const char character = traits_type::to_char_type(sign);
        if (character == '\n') {
            tell_(std::exchange(line_, {}));
        } else {
            line_.push_back(character);
        }
        return sign;
    }
    std::streamsize xsputn(const char* text, std::streamsize count) override {
        for (std::streamsize i = 0; i < count; ++i) overflow(traits_type::to_int_type(text[i]));
        return count;
    }

    Tell tell_;
    std::string line_;
};

}  // namespace window
