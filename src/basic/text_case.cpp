#include "basic/text.h"

namespace basic {

namespace {

/// A run of the alphabet in which capital and small letter stand `distance` apart, or take turns (distance
/// 1).
struct CaseRun {
    char32_t first;  ///< first capital
    char32_t last;   ///< last capital
    char32_t distance;
};

// Runs by first capital. Where letters take turns each capital is an even number of steps behind the first.
constexpr CaseRun kCaseRuns[] = {
    {'A', 'Z', 32},      {0xC0, 0xD6, 32},   {0xD8, 0xDE, 32},   {0x100, 0x12E, 1},  {0x132, 0x136, 1},
    {0x139, 0x147, 1},   {0x14A, 0x176, 1},  {0x179, 0x17D, 1},  {0x182, 0x184, 1},  {0x191, 0x191, 1},
    {0x1A0, 0x1A4, 1},   {0x1AF, 0x1AF, 1},  {0x1CD, 0x1DB, 1},  {0x1DE, 0x1EE, 1},  {0x1F8, 0x21E, 1},
    {0x222, 0x232, 1},   {0x386, 0x386, 38}, {0x388, 0x38A, 37}, {0x38C, 0x38C, 64}, {0x38E, 0x38F, 63},
    {0x391, 0x3A1, 32},  {0x3A3, 0x3AB, 32}, {0x400, 0x40F, 80}, {0x410, 0x42F, 32}, {0x460, 0x480, 1},
    {0x48A, 0x4BE, 1},   {0x4C0, 0x4C0, 15}, {0x4C1, 0x4CD, 1},  {0x4D0, 0x52E, 1},  {0x1E00, 0x1E94, 1},
    {0x1EA0, 0x1EFE, 1},
};

constexpr char32_t kCapitalYDiaeresis = 0x178, kSmallYDiaeresis = 0xFF;
constexpr char32_t kCapitalSigma = 0x3A3, kFinalSigma = 0x3C2;

bool isCapitalOf(const CaseRun& run, char32_t character) {
    if (character < run.first || character > run.last) return false;
    return run.distance != 1 || (character - run.first) % 2 == 0;
}

char32_t upperOf(char32_t character) {
    if (character < 0x80) return character >= 'a' && character <= 'z' ? character - 32 : character;
    if (character == kSmallYDiaeresis) return kCapitalYDiaeresis;
    if (character == kFinalSigma) return kCapitalSigma;
    for (const CaseRun& run : kCaseRuns) {
        if (isCapitalOf(run, character - run.distance)) return character - run.distance;
    }
    return character;
}

char32_t lowerOf(char32_t character) {
    if (character < 0x80) return character >= 'A' && character <= 'Z' ? character + 32 : character;
    if (character == kCapitalYDiaeresis) return kSmallYDiaeresis;
    for (const CaseRun& run : kCaseRuns) {
        if (isCapitalOf(run, character)) return character + run.distance;
    }
    return character;
}

template <typename Mapping>
std::string mapped(std::string_view text, Mapping mapping) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t position = 0; position < text.size();) {
        appendCharacter(result, mapping(nextCharacter(text, position)));
    }
    return result;
}

}  // namespace

std::string toUpper(std::string_view text) { return mapped(text, upperOf); }

std::string toLower(std::string_view text) { return mapped(text, lowerOf); }

char32_t foldCase(char32_t character) {
    // By way of the capital, so that the two small sigmas are one letter.
    return character < 0x80 ? lowerOf(character) : lowerOf(upperOf(character));
}

bool equalIgnoringCase(std::string_view left, std::string_view right) {
    if (left == right) return true;
    std::size_t l = 0, r = 0;
    while (l < left.size() && r < right.size()) {
        if (foldCase(nextCharacter(left, l)) != foldCase(nextCharacter(right, r))) return false;
    }
    return l == left.size() && r == right.size();
}

}  // namespace basic
