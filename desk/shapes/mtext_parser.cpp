#include "desk/shapes/mtext_parser.h"

#include "basic/text.h"
#include "desk/geometry/angles.h"
#include "desk/shapes/text_codes.h"

#include <cmath>
#include <cstdlib>
#include <string>

namespace shapes {

namespace {

double numberOf(std::string_view text) { return std::strtod(std::string(text).c_str(), nullptr); }

/// A height or a width: a value, or with "x" behind it a factor of the one before.
void scaleOrSet(std::string_view argument, double& value) {
    const bool isFactor = argument.ends_with('x') || argument.ends_with('X');
    const double number = numberOf(argument);
    if (!(number > 0)) return;
    value = isFactor ? value * number : number;
}

bool endsWord(char c) {
    return c == ' ' || c == '\\' || c == '{' || c == '}' || c == '%' || c == '\t' || c == '\n' || c == '^';
}

}  // namespace

std::string_view MTextParser::takeArgument() {
    const std::size_t end = std::min(content_.find(';', at_), content_.size());
    const std::string_view argument = content_.substr(at_, end - at_);
    at_ = std::min(end + 1, content_.size());
    return argument;
}

void MTextParser::setFont(std::string_view argument) {
    // family|b1|i0|c0|p34, or a file's name
    const std::size_t bar = argument.find('|');
    look_.font = fontOfName(argument.substr(0, bar));
    if (bar == std::string_view::npos) return;
    const std::string_view rest = argument.substr(bar);
    look_.font.bold = look_.font.bold || rest.find("|b1") != std::string_view::npos;
    look_.font.italic = look_.font.italic || rest.find("|i1") != std::string_view::npos;
}

void MTextParser::setParagraph(std::string_view argument) {
    // i: first line, l: others, q: alignment; tabs and the right edge change little and are passed over
    while (!argument.empty()) {
        const std::size_t comma = std::min(argument.find(','), argument.size());
        const std::string_view part = argument.substr(0, comma);
        argument.remove_prefix(std::min(comma + 1, argument.size()));
        if (part.size() < 2) continue;
        if (part[0] == 'i') look_.paragraph.firstIndent = numberOf(part.substr(1)) * look_.height;
        if (part[0] == 'l') look_.paragraph.leftIndent = numberOf(part.substr(1)) * look_.height;
        if (part[0] == 'q' || part.starts_with("xq")) {
            const char where = part.back();
            look_.paragraph.alignment = where == 'c'                   ? 1
                                        : where == 'r'                 ? 2
                                        : where == 'l' || where == 'j' ? 0
                                                                       : -1;
        }
    }
}

void MTextParser::takeStack(MTextAtom& atom) {
    const std::string_view argument = takeArgument();
    atom.kind = MTextAtom::Kind::Stack;
    const std::size_t middle = argument.find_first_of("/^#");
    atom.text = argument.substr(0, middle);
    atom.below.clear();
    atom.hasBar = false;
    if (middle == std::string_view::npos) return;
    atom.below = basic::trim(argument.substr(middle + 1));
    atom.hasBar = argument[middle] != '^';
}

bool MTextParser::takeEscaped(char code, MTextAtom& atom) {
    switch (code) {
        case 'P':
        case 'X':
        case 'N':
            atom.kind = MTextAtom::Kind::Paragraph;
            return true;
        case 'S':
            takeStack(atom);
            return true;
        case '~':
            atom.text = "\u00A0";
            return true;
        case 'L':
        case 'l':
            look_.underlined = code == 'L';
            return false;
        case 'O':
        case 'o':
            look_.overlined = code == 'O';
            return false;
        case 'K':
        case 'k':
            look_.struckOut = code == 'K';
            return false;
        case 'f':
        case 'F':
            setFont(takeArgument());
            return false;
        case 'H':
            scaleOrSet(takeArgument(), look_.height);
            return false;
        case 'W':
            scaleOrSet(takeArgument(), look_.widthFactor);
            return false;
        case 'T':
            scaleOrSet(takeArgument(), look_.tracking);
            return false;
        case 'Q':
            look_.oblique = geometry::radiansOf(numberOf(takeArgument()));
            return false;
        case 'C': {
            const int number = std::atoi(std::string(takeArgument()).c_str());
            look_.color = std::nullopt;
            if (number > 0 && number < 256) look_.color = number | TextPiece::kPaletteBit;
            return false;
        }
        case 'c': {
            // blue, green, red from the high byte down
            const long value = std::strtol(std::string(takeArgument()).c_str(), nullptr, 10);
            look_.color =
                static_cast<std::int32_t>((value & 0xFF) << 16 | (value & 0xFF00) | (value >> 16 & 0xFF));
            return false;
        }
        case 'p':
            setParagraph(takeArgument());
            return false;
        case 'A':
            takeArgument();
            return false;
        default:
            atom.text = code;
            return true;
    }
}

/// Reads what stands at a backslash, a brace, a caret or a percent sign. Returns whether it made an atom.
bool MTextParser::takeCode(MTextAtom& atom) {
    const char c = content_[at_];
    if (c == '\\' || c == '%') {
        if (const char32_t character = takeCharacterCode(content_, at_)) {
            basic::appendCharacter(atom.text, character);
            return true;
        }
    }
    ++at_;
    switch (c) {
        case '{':
            outer_.push_back(look_);
            return false;
        case '}':
            if (!outer_.empty()) {
                const MTextParagraph paragraph = look_.paragraph;
                look_ = outer_.back();
                look_.paragraph = paragraph;
                outer_.pop_back();
            }
            return false;
        case ' ':
            atom.kind = MTextAtom::Kind::Space;
            atom.text += ' ';
            return true;
        case '\n':
            atom.kind = MTextAtom::Kind::Paragraph;
            return true;
        case '\t':
            atom.kind = MTextAtom::Kind::Tab;
            return true;
        case '^':
            if (at_ < content_.size() && (content_[at_] == 'I' || content_[at_] == 'J')) {
                atom.kind = content_[at_] == 'I' ? MTextAtom::Kind::Tab : MTextAtom::Kind::Paragraph;
                ++at_;
                return true;
            }
            atom.text = c;
            return true;
        case '\\':
            if (at_ < content_.size()) return takeEscaped(content_[at_++], atom);
            atom.text = c;
            return true;
        default:
            atom.text = c;
            return true;
    }
}

bool MTextParser::next(MTextAtom& atom) {
    while (at_ < content_.size()) {
        atom.kind = MTextAtom::Kind::Text;
        atom.text.clear();
        if (!endsWord(content_[at_])) {
            const std::size_t begin = at_;
            while (at_ < content_.size() && !endsWord(content_[at_])) ++at_;
            atom.text = content_.substr(begin, at_ - begin);
        } else if (!takeCode(atom)) {
            continue;
        }
        atom.look = look_;
        return true;
    }
    return false;
}

}  // namespace shapes
