#pragma once

#include "forms/twips.h"

#include <string_view>

namespace forms {

class Control;
class Form;

/// How much room texts take in a face's font. A dialog is laid out for lines of 225 twips; a face's twip is
/// its line height / 225.
class TextMetric {
  public:
    static constexpr Twips kLineHeight = 225;

    virtual ~TextMetric() = default;
    /// The width of one line of text.
    virtual Twips width(std::string_view text) const = 0;
};

/// The widths of a common sans-serif font, for tests and for a face that can't measure.
class StandardMetric : public TextMetric {
  public:
    Twips width(std::string_view text) const override;
};

/// The factor by which a face enlarges a whole dialog so that the captions of its visible controls fit: 1, or
/// more up to kMostGrowth, where it stops.
inline constexpr float kMostGrowth = 1.15f;
float growthToFit(const Form& form, const TextMetric& metric);

}  // namespace forms
