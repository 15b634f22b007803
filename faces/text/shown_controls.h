#pragma once

#include <ostream>
#include <streambuf>
#include <string>
#include <string_view>

namespace text_face {

/// Prints whatever is printed on a stream as basic::shownText shows it, as long as it lives: names and texts
/// of a drawing or a file could else rule the user's terminal.
class ShownControls : private std::streambuf {
  public:
    explicit ShownControls(std::ostream& stream) : stream_(stream), target_(stream.rdbuf(this)) {}
    ~ShownControls() override;
    ShownControls(const ShownControls&) = delete;
    ShownControls& operator=(const ShownControls&) = delete;

  private:
    int_type overflow(int_type byte) override;
    std::streamsize xsputn(const char* text, std::streamsize size) override;
    int sync() override;
    bool put(std::string_view text);

    std::ostream& stream_;
    std::streambuf* target_;
    std::string held_;  ///< the beginning of a character whose rest may still come
};

}  // namespace text_face
