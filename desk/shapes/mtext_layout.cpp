#include "desk/shapes/mtext_layout.h"

#include "desk/shapes/mtext_parser.h"

#include <algorithm>
#include <cmath>

namespace shapes {

namespace {

/// Distance of the base lines of an MTEXT with line spacing 1, in heights.
constexpr double kLinePitch = 5.0 / 3.0;
/// The parts of a stacked fraction, in heights.
constexpr double kStackHeight = 0.7;
constexpr double kStackGap = 0.15;

/// Gathers atoms into lines and the lines into pieces.
class Layout {
  public:
    explicit Layout(const MTextFormat& format) : format_(format) {}

    void add(const MTextAtom& atom) {
        switch (atom.kind) {
            case MTextAtom::Kind::Paragraph:
                endWord();
                endLine(true, atom.look);
                break;
            case MTextAtom::Kind::Space:
                endWord();
                line_.push_back(atom);
                lineWidth_ += widthOf(atom);
                break;
            default:
                word_.push_back(atom);
                wordWidth_ += widthOf(atom);
                break;
        }
    }

    MTextLayout finish(const MTextLook& last) {
        endWord();
        endLine(true, last);
        MTextLayout result;
        result.width = format_.width;
        for (const Line& line : lines_) {
            if (format_.width <= 0) result.width = std::max(result.width, line.width);
        }
        result.left = result.width;
        double baseLine = 0;
        for (std::size_t i = 0; i < lines_.size(); ++i) {
            const double tallest = format_.exactSpacing ? format_.height : lines_[i].tallest;
            baseLine -= i == 0 ? lines_[i].tallest : tallest * kLinePitch * format_.spacing;
            place(lines_[i], baseLine, result);
        }
        result.height = -baseLine + kDescent * format_.height;
        return result;
    }

  private:
    struct Line {
        std::vector<MTextAtom> atoms;
        double width = 0;
        double tallest = 0;
        double indent = 0;
        MTextParagraph paragraph;
    };

    static double factor(const MTextLook& look) { return look.height * look.widthFactor; }
    static double widthOf(const MTextAtom& atom) {
        if (atom.kind == MTextAtom::Kind::Tab) return atom.look.height * 4;
        if (atom.kind == MTextAtom::Kind::Stack) {
            const double above = textAdvance(atom.text, atom.look.font);
            const double below = textAdvance(atom.below, atom.look.font);
            return std::max(above, below) * kStackHeight * factor(atom.look);
        }
        return textAdvance(atom.text, atom.look.font) * atom.look.tracking * factor(atom.look);
    }

    void endWord() {
        if (word_.empty()) return;
        const double room = format_.width - indent(word_.front().look);
        if (format_.width > 0 && lineWidth_ > 0 && lineWidth_ + wordWidth_ > room * (1 + 1e-9)) {
            while (!line_.empty() && line_.back().kind == MTextAtom::Kind::Space) {
                lineWidth_ -= widthOf(line_.back());
                line_.pop_back();
            }
            endLine(false, word_.front().look);
        }
        line_.insert(line_.end(), word_.begin(), word_.end());
        lineWidth_ += wordWidth_;
        word_.clear();
        wordWidth_ = 0;
    }

    double indent(const MTextLook& look) const {
        return (firstOfParagraph_ ? look.paragraph.firstIndent : 0) + look.paragraph.leftIndent;
    }

    void endLine(bool paragraphEnds, const MTextLook& look) {
        Line line;
        line.indent = indent(line_.empty() ? look : line_.front().look);
        line.paragraph = line_.empty() ? look.paragraph : line_.front().look.paragraph;
        line.tallest = line_.empty() ? look.height : 0;
        for (const MTextAtom& atom : line_) line.tallest = std::max(line.tallest, atom.look.height);
        line.width = lineWidth_;
        line.atoms = std::move(line_);
        lines_.push_back(std::move(line));
        line_.clear();
        lineWidth_ = 0;
        firstOfParagraph_ = paragraphEnds;
    }

    void place(const Line& line, double baseLine, MTextLayout& result) {
        const int column = line.paragraph.alignment >= 0 ? line.paragraph.alignment : format_.column;
        double x = column == 0 ? line.indent : (result.width - line.width) * column / 2;
        result.left = std::min(result.left, x);
        result.right = std::max(result.right, x + line.width);
        for (const MTextAtom& atom : line.atoms) {
            const double width = widthOf(atom);
            if (atom.kind == MTextAtom::Kind::Stack) {
                placeStack(atom, x, baseLine, width, result);
            } else if (atom.kind == MTextAtom::Kind::Text || atom.look.underlined) {
                addPiece(atom.text, atom.look, x, baseLine, 1, width, result);
            }
            x += width;
        }
    }

    void placeStack(const MTextAtom& atom, double x, double baseLine, double width, MTextLayout& result) {
        const double height = atom.look.height;
        const double half = height / 2;
        const auto inMiddle = [&](const std::string& text) {
            return x + (width - textAdvance(text, atom.look.font) * kStackHeight * factor(atom.look)) / 2;
        };
        MTextLook look = atom.look;
        look.overlined = atom.hasBar;
        addPiece(atom.text, atom.look, inMiddle(atom.text), baseLine + half + kStackGap * height,
                 kStackHeight, -1, result);
        addPiece(atom.below, look, inMiddle(atom.below),
                 baseLine + half - (kStackGap + kStackHeight) * height, kStackHeight, -1, result);
    }

    /// `scale` of the look's height; `width` in drawing units, below 0 by the text.
    void addPiece(const std::string& text, const MTextLook& look, double x, double y, double scale,
                  double width, MTextLayout& result) {
        if (text.empty()) return;
        const double height = look.height * scale;
        TextPiece piece;
        piece.text = text;
        piece.font = look.font;
        piece.underlined = look.underlined;
        piece.overlined = look.overlined;
        piece.struckOut = look.struckOut;
        piece.color = look.color;
        piece.frame.xAxis = {height * look.widthFactor, 0, 0};
        piece.frame.yAxis = {height * std::tan(look.oblique), height, 0};
        piece.frame.origin = {x, y, 0};
        piece.width = width < 0 ? textAdvance(text, look.font) : width / (height * look.widthFactor);
        result.pieces.push_back(std::move(piece));
    }

    const MTextFormat& format_;
    std::vector<Line> lines_;
    std::vector<MTextAtom> line_;
    std::vector<MTextAtom> word_;
    double lineWidth_ = 0;
    double wordWidth_ = 0;
    bool firstOfParagraph_ = true;
};

}  // namespace

MTextLayout layOutMText(std::string_view content, const MTextFormat& format) {
    MTextLook look;
    look.height = format.height;
    look.widthFactor = format.widthFactor;
    look.oblique = format.oblique;
    look.font = format.font;
    Layout layout(format);
    MTextParser parser(content, look);
    for (MTextAtom atom; parser.next(atom);) layout.add(atom);
    return layout.finish(parser.look());
}

}  // namespace shapes
