#pragma once

#include "desk/shapes/text_piece.h"

#include <string>
#include <string_view>
#include <vector>

namespace shapes {

/// What the codes of an MTEXT set for a paragraph; lengths in drawing units.
struct MTextParagraph {
    double firstIndent = 0;
    double leftIndent = 0;
    int alignment = -1;  ///< 0 left, 1 centre, 2 right; -1 as the whole text
};

/// What the codes set for the characters that follow.
struct MTextLook {
    TextFont font;
    double height = 1;
    double widthFactor = 1;
    double oblique = 0;
    double tracking = 1;
    bool underlined = false;
    bool overlined = false;
    bool struckOut = false;
    std::optional<std::int32_t> color;  ///< as in TextPiece
    MTextParagraph paragraph;
};

/// A piece of an MTEXT that no line break divides.
struct MTextAtom {
    enum class Kind : std::uint8_t { Text, Space, Tab, Paragraph, Stack };
    Kind kind = Kind::Text;
    std::string text;   ///< of a stack the upper part
    std::string below;  ///< the lower part of a stack
    bool hasBar = false;
    MTextLook look;
};

/// Takes an MTEXT's content apart. A code that it doesn't know is passed over with its letter.
class MTextParser {
  public:
    MTextParser(std::string_view content, const MTextLook& look) : content_(content), look_(look) {}

    /// The next atom, or false at the end.
    bool next(MTextAtom& atom);
    const MTextLook& look() const { return look_; }

  private:
    bool takeCode(MTextAtom& atom);
    bool takeEscaped(char code, MTextAtom& atom);
    std::string_view takeArgument();
    void setFont(std::string_view argument);
    void setParagraph(std::string_view argument);
    void takeStack(MTextAtom& atom);

    std::string_view content_;
    std::size_t at_ = 0;
    MTextLook look_;
    std::vector<MTextLook> outer_;
};

}  // namespace shapes
