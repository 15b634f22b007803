#include "desk/shapes/tolerance_frame.h"

#include "basic/text.h"
#include "desk/shapes/dim_style.h"
#include "desk/shapes/read_tags.h"
#include "desk/shapes/text_codes.h"

#include <algorithm>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>

namespace shapes {

namespace {

// Sizes in capital heights.
constexpr double kRow = 2;
constexpr double kMargin = 0.5;  ///< of a cell, left and right
constexpr double kSymbol = 1.2;  ///< width

/// A character of the font of symbols as lines "l x1 y1 x2 y2" and arcs "a x y radius from to" in degrees,
/// in a field of kSymbol by 1. Empty where it has none.
std::string_view drawingOf(char letter) {
    static constexpr std::pair<char, std::string_view> kDrawings[] = {
        {'a', "l .1 .1 1.1 .1 l .1 .1 1 .85"},
        {'b', "l .1 0 1.1 0 l .6 0 .6 1"},
        {'c', "l 0 .15 .8 .15 l .8 .15 1.2 .85 l 1.2 .85 .4 .85 l .4 .85 0 .15"},
        {'d', "a .6 .2 .5 0 180 l .1 .2 1.1 .2"},
        {'e', "a .6 .5 .45 0 360"},
        {'f', "l .2 0 .6 1 l .6 0 1 1"},
        {'g', "a .6 .5 .28 0 360 l .1 0 .5 1 l .7 0 1.1 1"},
        {'h', "l .1 0 1 .9 l 1 .9 .65 .8 l 1 .9 .9 .55"},
        {'i', "l .1 .5 1.1 .5 l .3 .75 .9 .75 l .3 .25 .9 .25"},
        {'j', "a .6 .5 .33 0 360 l .6 0 .6 1 l .1 .5 1.1 .5"},
        {'k', "a .6 .25 .5 0 180"},
        {'l', "a .6 .5 .5 0 360 l .45 .78 .45 .22 l .45 .22 .78 .22"},
        {'m', "a .6 .5 .5 0 360 l .36 .25 .36 .75 l .36 .75 .6 .4 l .6 .4 .84 .75 l .84 .75 .84 .25"},
        {'n', "a .6 .5 .35 0 360 l .25 0 .95 1"},
        {'p', "a .6 .5 .5 0 360 l .45 .2 .45 .8 l .45 .8 .66 .8 a .66 .66 .14 -90 90 l .66 .52 .45 .52"},
        {'r', "a .6 .5 .45 0 360 a .6 .5 .22 0 360"},
        {'s', "a .6 .5 .5 0 360 a .6 .63 .13 20 270 a .6 .37 .13 90 -160"},
        {'t',
         "l 0 0 .5 0 l 0 0 .6 .9 l .6 .9 .33 .78 l .6 .9 .6 .6 l .5 0 1.1 .9 l 1.1 .9 .83 .78 "
         "l 1.1 .9 1.1 .6"},
        {'u', "l .1 .5 1.1 .5"},
    };
    for (const auto& [name, drawing] : kDrawings) {
        if (name == letter) return drawing;
    }
    return {};
}

/// A stretch of a cell in one font.
struct Run {
    std::string text;
    bool isSymbols = false;
};

/// Reads the codes of a cell: groups in braces and changes of font.
std::vector<Run> runsOf(std::string_view cell) {
    std::vector<Run> runs;
    std::vector<bool> fonts{false};  // whether it is that of symbols, by depth of braces
    for (std::size_t at = 0; at < cell.size(); ++at) {
        const char sign = cell[at];
        if (sign == '{') {
            fonts.push_back(fonts.back());
        } else if (sign == '}') {
            if (fonts.size() > 1) fonts.pop_back();
        } else if (sign == '\\' && at + 1 < cell.size() && cell[at + 1] != '\\') {
            const std::size_t end = std::min(cell.find(';', at), cell.size());
            const std::string_view code = cell.substr(at + 1, end - at - 1);
            const bool isFont = !code.empty() && (code.front() == 'F' || code.front() == 'f');
            if (isFont) fonts.back() = basic::equalIgnoringCase(code.substr(1, 3), "gdt");
            at = end;
        } else {
            if (runs.empty() || runs.back().isSymbols != fonts.back()) runs.push_back({"", fonts.back()});
            runs.back().text += sign;
        }
    }
    return runs;
}

std::vector<std::string_view> split(std::string_view text, std::string_view at) {
    std::vector<std::string_view> parts;
    for (std::size_t begin = 0;;) {
        const std::size_t end = text.find(at, begin);
        parts.push_back(text.substr(begin, end - begin));
        if (end == std::string_view::npos) return parts;
        begin = end + at.size();
    }
}

/// Draws rows of cells downwards from the origin, in capital heights.
class FrameWriter {
  public:
    FrameWriter(const Transform& frame, ToleranceFrame& into) : frame_(frame), into_(into) {}

    void addRow(std::string_view row) {
        std::vector<std::string_view> cells = split(row, "%%v");
        while (!cells.empty() && basic::trim(cells.back()).empty()) cells.pop_back();
        if (cells.empty()) return;
        x_ = 0;
        line(0, 0, 0, -kRow);
        for (const std::string_view cell : cells) {
            if (!basic::trim(cell).empty()) addCell(cell);
        }
        line(0, 0, x_, 0);
        line(0, -kRow, x_, -kRow);
        top_ -= kRow;
    }

  private:
    void addCell(std::string_view cell) {
        x_ += kMargin;
        for (const Run& run : runsOf(cell)) {
            if (run.isSymbols) {
                for (const char letter : run.text) addSymbol(letter);
            } else {
                for (const TextStretch& stretch : decodeLine(run.text)) addText(stretch.text);
            }
        }
        x_ += kMargin;
        line(x_, 0, x_, -kRow);
    }
    void addText(const std::string& text) {
        TextPiece piece;
        piece.text = text;
        piece.width = textAdvance(text, piece.font);
        piece.frame = frame_ * Transform::translation({x_, top_ - kRow / 2 - 0.5, 0});
        x_ += piece.width;
        into_.texts.push_back(std::move(piece));
    }
    void addSymbol(char letter) {
        std::istringstream parts{std::string(drawingOf(letter))};
        const double y = -kRow / 2 - 0.5;
        for (char what = 0; parts >> what;) {
            double v[5] = {};
            for (int i = 0; i < (what == 'l' ? 4 : 5); ++i) parts >> v[i];
            if (what == 'l') {
                line(x_ + v[0], y + v[1], x_ + v[2], y + v[3]);
            } else {
                const ArcCurve arc{{x_ + v[0], top_ + y + v[1], 0},
                                   {v[2], 0, 0},
                                   {0, v[2], 0},
                                   radiansOf(v[3]),
                                   radiansOf(v[4])};
                into_.strokes.push_back({transformed(arc, frame_)});
            }
        }
        x_ += kSymbol;
    }
    void line(double x1, double y1, double x2, double y2) {
        into_.strokes.push_back(
            {LineCurve{frame_.apply({x1, top_ + y1, 0}), frame_.apply({x2, top_ + y2, 0})}});
    }

    const Transform frame_;
    ToleranceFrame& into_;
    double x_ = 0;
    double top_ = kRow / 2;
};

}  // namespace

ToleranceFrame readTolerance(const Drawing& drawing, EntityId id) {
    ToleranceFrame result;
    std::string content;
    Point3 place;
    Vector3 direction{1, 0, 0};
    Vector3 extrusion = kZAxis;
    forEachTag(drawing.tags(id), [&](const dxf::Tag& tag) {
        if (takePoint(tag, 10, place) || takePoint(tag, 11, direction)) return;
        if (takePoint(tag, 210, extrusion)) return;
        if (tag.code == 1) content = tag.text();
    });
    Transform frame = geometry::objectToWorld(extrusion);
    frame.xAxis = normalized(direction);
    frame.yAxis = normalized(cross(frame.zAxis, frame.xAxis));
    frame.origin = place;
    const double height = readDimStyle(drawing, id).text;
    FrameWriter writer(frame * Transform::scaling(height, height, height), result);
    for (const std::string_view line : split(content, "^J")) {
        for (const std::string_view row : split(line, "\n")) writer.addRow(row);
    }
    return result;
}

}  // namespace shapes
