#include "desk/shapes/text_piece.h"

#include "basic/text.h"

#include <string>

namespace shapes {

namespace {

/// Advances of the characters 32 to 126 in thousandths of the em, as the common sans-serif faces have them,
/// whose capitals are 716 high.
constexpr short kAdvances[] = {
    278, 278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333,  278, 278, 556, 556, 556,
    556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556, 1015, 667, 667, 722, 722, 667,
    611, 778, 722, 278, 500, 667, 556, 833, 722, 778, 667, 778, 722, 667,  611, 722, 667, 944, 667,
    667, 611, 278, 278, 278, 469, 556, 333, 556, 556, 500, 556, 556, 278,  556, 556, 222, 222, 500,
    222, 833, 556, 556, 556, 556, 333, 500, 278, 556, 500, 722, 500, 500,  500, 334, 260, 334, 584};
constexpr double kCapitals = 716;

/// The letter that an accented one of Latin 1 is as wide as.
char32_t baseLetter(char32_t c) {
    static constexpr std::string_view kBases =
        "AAAAAA CEEEEIIIIDNOOOOO OUUUUYPsaaaaaa ceeeeiiiionooooo ouuuuypy";
    if (c < 0xC0 || c > 0xFF) return 0;
    const char base = kBases[c - 0xC0];
    return base == ' ' ? 0 : static_cast<char32_t>(base);
}

bool contains(const std::string& text, std::initializer_list<const char*> words) {
    for (const char* word : words) {
        if (text.find(word) != std::string::npos) return true;
    }
    return false;
}

}  // namespace

TextFont fontOfName(std::string_view name) {
    const std::string lower = basic::toLower(name);
    TextFont font;
    if (contains(lower, {"mono", "cour", "consola", "typewriter", "lucon"})) {
        font.kind = TextFont::Kind::Mono;
    } else if (contains(lower, {"times", "roman.", "serif", "garamond", "georgia", "cambria", "palatino",
                                "romanc", "romant", "romand", "complex", "triplex", "italicc", "italict"}) &&
               !contains(lower, {"sans"})) {
        font.kind = TextFont::Kind::Serif;
    }
    font.bold = contains(lower, {"bold", "black", "heavy"}) || lower.ends_with("bd.ttf");
    font.italic = contains(lower, {"italic", "oblique"}) || lower == "ariali.ttf" || lower == "timesi.ttf";
    return font;
}

double textAdvance(char32_t c, const TextFont& font) {
    if (font.kind == TextFont::Kind::Mono) return 600 / 562.0;
    if (const char32_t base = baseLetter(c)) c = base;
    constexpr char32_t kHardSpace = 0xA0;
    if (c == kHardSpace) c = ' ';
    double advance = 600;
    if (c >= 32 && c < 127) {
        advance = kAdvances[c - 32];
    } else if (c >= 0x2E80) {
        advance = 1000;
    } else if (c < 32) {
        advance = 0;
    }
    if (font.kind == TextFont::Kind::Serif) advance *= 0.97;
    if (font.bold) advance *= 1.06;
    return advance / kCapitals;
}

double textAdvance(std::string_view text, const TextFont& font) {
    double sum = 0;
    for (std::size_t at = 0; at < text.size();) sum += textAdvance(basic::nextCharacter(text, at), font);
    return sum;
}

}  // namespace shapes
