#include "forms/text_metric.h"

#include "basic/text.h"
#include "forms/form.h"

#include <algorithm>
#include <array>
#include <string>

namespace forms {

namespace {

// Advance widths of the characters from the blank to the tilde, in hundredths of the line height.
constexpr std::array<unsigned char, 95> kAdvances = {
    23, 24, 33, 49, 45, 68, 66, 19, 25, 25, 35, 57, 18, 33, 18, 32, 45, 45, 45, 45, 45, 45, 45, 45,
    45, 45, 18, 18, 57, 57, 57, 37, 79, 54, 48, 52, 58, 42, 41, 57, 59, 22, 30, 48, 39, 75, 62, 63,
    47, 63, 50, 44, 44, 57, 52, 78, 49, 46, 48, 25, 32, 25, 57, 35, 22, 42, 49, 39, 49, 44, 26, 49,
    47, 20, 20, 41, 20, 72, 47, 49, 49, 49, 29, 36, 28, 47, 40, 61, 39, 41, 38, 25, 20, 25, 57};
constexpr int kOtherAdvance = 46;  ///< accented letters and the like

/// What a kind draws beside its caption, and whether the caption can wrap.
struct Trim {
    Twips width;
    Twips height;
};

Trim trimOf(Kind kind) {
    switch (kind) {
        case Kind::Button:
            return {180, 90};
        case Kind::CheckBox:
        case Kind::OptionButton:
            return {285, 0};
        case Kind::Frame:
            return {240, 0};
        default:
            return {0, 0};
    }
}

/// The lines that a text takes in a width; 0 if one of its words is too wide.
int linesIn(std::string_view text, Twips room, const TextMetric& metric) {
    int lines = 1;
    std::string line;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(' '), text.size());
        const std::string word(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        if (metric.width(word) > room) return 0;
        std::string longer = line;
        if (!line.empty()) longer += ' ';
        longer += word;
        if (metric.width(longer) > room) ++lines;
        line = metric.width(longer) > room ? word : longer;
    }
    return lines;
}

// Whether a caption has room in its control, wrapped at blanks where the control is high enough for several
// lines; true for a control that shows none. The room is the control's size less what its kind draws besides.
bool fitsGrown(const Control& control, const TextMetric& metric, float growth) {
    if (!control.has(Property::Caption) || !control.has(Property::Bounds)) return true;
    const Trim trim = trimOf(control.kind());
    const bool oneLine = control.kind() == Kind::Frame;
    const Twips room = control.width() * growth - trim.width;
    const Twips height = oneLine ? TextMetric::kLineHeight : control.height() * growth - trim.height;
    if (oneLine) return metric.width(control.caption()) <= room;
    const int lines = linesIn(control.caption(), room, metric);
    return lines > 0 && static_cast<Twips>(lines) * TextMetric::kLineHeight <= height;
}

}  // namespace

Twips StandardMetric::width(std::string_view text) const {
    int sum = 0;
    for (std::size_t position = 0; position < text.size();) {
        const auto byte = static_cast<unsigned char>(text[position]);
        sum += byte >= 32 && byte < 127 ? kAdvances[byte - 32u] : kOtherAdvance;
        basic::nextCharacter(text, position);
    }
    return static_cast<Twips>(sum) * kLineHeight / 100;
}

float growthToFit(const Form& form, const TextMetric& metric) {
    float growth = 1;
    for (const Control* control : form.controls()) {
        if (!control->has(Property::Bounds) || !control->shown()) continue;
        while (growth < kMostGrowth && !fitsGrown(*control, metric, growth)) growth += 0.01f;
    }
    return std::min(growth, kMostGrowth);
}

}  // namespace forms
