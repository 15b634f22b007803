#include "basic/text.h"

#include <algorithm>

namespace basic {

namespace {

// The base letter of each accented Latin letter, 64 characters a line, "." for those without one. The order
// is a table of our own so that lists look the same under every locale of the machine.
constexpr char32_t kLatinStart = 0xC0;
constexpr std::string_view kLatinBases =
    "AAAAAA.CEEEEIIIIDNOOOOO.OUUUUY..AAAAAA.CEEEEIIIIDNOOOOO.OUUUUY.Y"  // U+00C0
    "AAAAAACCCCCCCCDDDDEEEEEEEEEEGGGGGGGGHHHHIIIIIIIIII..JJKKKLLLLLLL"  // U+0100
    "LLLNNNNNNNNNOOOOOO..RRRRRRSSSSSSSSTTTTTTUUUUUUUUUUUUWWYYYZZZZZZS"  // U+0140
    "B................FF.............OO.............UU..............."  // U+0180
    ".............AAIIOOUUUUUUUUUU.AAAA....GGKKOOOO..J...GG..NNAA...."  // U+01C0
    "AAAAEEEEIIIIOOOORRRRUUUUSSTT..HH......AAEEOOOOOOOOYY";             // U+0200
constexpr char32_t kAdditionalStart = 0x1E00;
constexpr std::string_view kAdditionalBases =
    "AABBBBBBCCDDDDDDDDDDEEEEEEEEEEFFGGHHHHHHHHHHIIIIKKKKKKLLLLLLLLMM"   // U+1E00
    "MMMMNNNNNNNNOOOOOOOOPPPPRRRRRRRRSSSSSSSSSSTTTTTTTTUUUUUUUUUUVVVV"   // U+1E40
    "WWWWWWWWWWXXXXYYZZZZZZHTWYA.....AAAAAAAAAAAAAAAAAAAAAAAAEEEEEEEE"   // U+1E80
    "EEEEEEEEIIIIOOOOOOOOOOOOOOOOOOOOOOOOUUUUUUUUUUUUUUYYYYYYYY......";  // U+1EC0

/// Letters that are sorted as two.
struct Pair {
    char32_t letter;  ///< small letter
    char first, second;
};
constexpr Pair kPairs[] = {
    {0xDF, 'S', 'S'}, {0xE6, 'A', 'E'}, {0xFE, 'T', 'H'}, {0x133, 'I', 'J'}, {0x153, 'O', 'E'}};

// Ranks of the classes of characters, above the rank within the class.
constexpr char32_t kDigitClass = 1u << 24, kLatinClass = 2u << 24, kOtherClass = 3u << 24;

bool isCombiningMark(char32_t character) { return character >= 0x300 && character <= 0x36F; }

bool isPunctuation(char32_t character) {
    return character < kLatinStart || character == 0xD7 || character == 0xF7 ||
           (character >= 0x2000 && character <= 0x2BFF) || (character >= 0x3000 && character <= 0x303F) ||
           isCombiningMark(character);
}

char baseLetter(char32_t character) {
    const auto lookUp = [character](char32_t start, std::string_view bases) {
        const bool inside = character >= start && character - start < bases.size();
        return inside ? bases[character - start] : '.';
    };
    const char base = lookUp(kLatinStart, kLatinBases);
    return base != '.' ? base : lookUp(kAdditionalStart, kAdditionalBases);
}

/// What a character counts in the order: its rank, and its accent where the ranks are equal.
struct Weight {
    char32_t rank = 0;
    char32_t accent = 0;
};

Weight latinWeight(char letter, char32_t accent) {
    return {kLatinClass + static_cast<unsigned char>(letter), accent};
}

/// Gives the weights of a text one after the other.
class Weights {
  public:
    explicit Weights(std::string_view text) : text_(text) {}

    /// False at the end of the text.
    bool next(Weight& weight) {
        if (pending_.rank != 0) {
            weight = pending_;
            pending_ = {};
            return true;
        }
        if (position_ == text_.size()) return false;
        weight = weigh(nextCharacter(text_, position_));
        absorbMarks(weight);
        return true;
    }

  private:
    Weight weigh(char32_t character) {
        if (character >= '0' && character <= '9') return {kDigitClass + character, 0};
        const char32_t folded = foldCase(character);
        if (folded >= 'a' && folded <= 'z') return latinWeight(static_cast<char>(folded - ('a' - 'A')), 0);
        if (isPunctuation(character)) return {character + 1, 0};
        if (const char base = baseLetter(folded); base != '.') return latinWeight(base, folded);
        for (const Pair& pair : kPairs) {
            if (pair.letter != folded) continue;
            pending_ = latinWeight(pair.second, folded);
            return latinWeight(pair.first, folded);
        }
        return {kOtherClass + folded, 0};
    }

    /// Accents written as characters of their own behind a letter.
    void absorbMarks(Weight& weight) {
        while (position_ < text_.size()) {
            std::size_t behind = position_;
            const char32_t mark = nextCharacter(text_, behind);
            if (!isCombiningMark(mark)) return;
            weight.accent = weight.accent * 31 + mark;
            position_ = behind;
        }
    }

    std::string_view text_;
    std::size_t position_ = 0;
    Weight pending_;
};

/// How many bytes at the start may be left out of a comparison: equal ASCII characters, but for the last one,
/// which may have an accent behind it.
std::size_t equalStart(std::string_view left, std::string_view right) {
    const std::size_t limit = std::min(left.size(), right.size());
    std::size_t length = 0;
    while (length < limit && left[length] == right[length] &&
           static_cast<unsigned char>(left[length]) < 0x80) {
        ++length;
    }
    return length > 0 ? length - 1 : 0;
}

}  // namespace

int compareText(std::string_view left, std::string_view right) {
    const std::size_t start = equalStart(left, right);
    left.remove_prefix(start);
    right.remove_prefix(start);
    Weights leftWeights(left), rightWeights(right);
    int byAccent = 0;
    for (;;) {
        Weight l, r;
        const bool more = leftWeights.next(l);
        if (!rightWeights.next(r)) return more ? 1 : byAccent;
        if (!more) return -1;
        if (l.rank != r.rank) return l.rank < r.rank ? -1 : 1;
        if (byAccent == 0 && l.accent != r.accent) byAccent = l.accent < r.accent ? -1 : 1;
    }
}

}  // namespace basic
