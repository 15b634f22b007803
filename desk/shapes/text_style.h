#pragma once

#include "desk/shapes/names.h"
#include "desk/shapes/text_piece.h"

#include <string>
#include <string_view>
#include <unordered_map>

namespace shapes {

/// A text style as far as it changes a text that doesn't say it itself.
struct TextStyle {
    TextFont font;
    double widthFactor = 1;
    double oblique = 0;  ///< radians
};

/// The text styles of a drawing as it is when this is made.
class TextStyles {
  public:
    TextStyles() = default;
    explicit TextStyles(const Drawing& drawing);

    /// By name without regard to case; a plain one where the drawing lacks it.
    const TextStyle& find(std::string_view name) const;

  private:
    std::unordered_map<std::string, TextStyle> byName_;
    TextStyle plain_;
};

}  // namespace shapes
