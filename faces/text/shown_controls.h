#pragma once

#include <ostream>
#include <streambuf>
#include <string_view>

namespace text_face {

/// Shows the control characters of whatever is printed on a stream instead of sending them, as long as it
/// lives: names and texts of a drawing or a file could else rule the user's terminal. Line feeds and tabs
/// pass, and what is no UTF-8 isn't touched.
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
    bool take(char byte);

    std::ostream& stream_;
    std::streambuf* target_;
    bool behindC2_ = false;  ///< the lead byte of the controls U+0080 to U+009F is held back
};

}  // namespace text_face
