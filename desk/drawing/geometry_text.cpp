#include "desk/drawing/geometry_text.h"

#include "basic/text.h"
#include "desk/drawing/geometry_tags.h"
#include "desk/drawing/transform.h"

#include <algorithm>
#include <string>

namespace drawing {

namespace {

/// How far a text reaches below its base line, in heights.
constexpr double kDescent = 0.25;
/// Distance of the base lines of an MTEXT with line spacing 1, in heights.
constexpr double kLinePitch = 5.0 / 3.0;

/// A line of text as TEXT, ATTRIB and ATTDEF store it, in object coordinates.
struct LineText {
    std::string text;
    std::string tag;
    Point3 position;   ///< group 10
    Point3 alignment;  ///< group 11
    bool hasAlignment = false;
    Vector3 extrusion = kZAxis;
    double height = 0;
    double widthFactor = 1;
    double rotation = 0;
    double oblique = 0;
    int generation = 0;
    int horizontal = 0;
    int vertical = 0;
    bool isDefinition = false;
    bool isPlain = true;     ///< TEXT, not an attribute
    bool invisible = false;  ///< of an attribute: group 70, bit 1
};

LineText readLineText(dxf::TagReader tags) {
    LineText text;
    forEachTag(tags, [&](const dxf::Tag& tag) {
        text.hasAlignment = text.hasAlignment || tag.code == 11;
        if (takePoint(tag, 10, text.position) || takePoint(tag, 11, text.alignment)) return;
        if (takePoint(tag, 210, text.extrusion)) return;
        switch (tag.code) {
            case 0:
                text.isPlain = tag.raw == "TEXT";
                text.isDefinition = tag.raw == "ATTDEF";
                break;
            case 1:
                text.text = tag.text();
                break;
            case 2:
                text.tag = tag.text();
                break;
            case 40:
                text.height = tag.numberOr(0);
                break;
            case 41:
                text.widthFactor = tag.numberOr(1);
                break;
            case 50:
                text.rotation = radiansOf(tag.numberOr(0));
                break;
            case 51:
                text.oblique = radiansOf(tag.numberOr(0));
                break;
            case 70:
                text.invisible = !text.isPlain && (tag.integerOr(0) & 1) != 0;
                break;
            case 71:
                text.generation = static_cast<int>(tag.integerOr(0));
                break;
            case 72:
                text.horizontal = static_cast<int>(tag.integerOr(0));
                break;
            case 73:  // of an attribute the length of its field
                if (text.isPlain) text.vertical = static_cast<int>(tag.integerOr(0));
                break;
            case 74:
                text.vertical = static_cast<int>(tag.integerOr(0));
                break;
            default:
                break;
        }
    });
    return text;
}

/// Box of a line in its own coordinates, X along the base line, the origin at its anchor.
struct Extent {
    double left = 0;
    double right = 0;
    double bottom = 0;
    double top = 0;
};

/// Values of group 72.
enum Horizontal { kLeft = 0, kCenter = 1, kRight = 2, kAligned = 3, kMiddle = 4, kFit = 5 };

Extent place(int horizontal, int vertical, double width, double height) {
    Extent extent;
    if (horizontal == kCenter || horizontal == kMiddle) extent.left = -width / 2;
    if (horizontal == kRight) extent.left = -width;
    // Values of group 73 (74): 1 bottom, 2 middle, 3 top.
    double baseLine = 0;
    if (vertical == 1) baseLine = kDescent * height;
    if (vertical == 2 || horizontal == kMiddle) baseLine = -height / 2;
    if (vertical == 3) baseLine = -height;
    extent.right = extent.left + width;
    extent.bottom = baseLine - kDescent * height;
    extent.top = baseLine + height;
    return extent;
}

std::array<Point3, 4> corners(const Extent& extent, const Transform& toWorld) {
    return {toWorld.apply({extent.left, extent.bottom, 0}), toWorld.apply({extent.right, extent.bottom, 0}),
            toWorld.apply({extent.right, extent.top, 0}), toWorld.apply({extent.left, extent.top, 0})};
}

/// Advance of a character in capital heights.
double advance(char32_t c) {
    static constexpr std::u32string_view kNarrow = U"iljtfrI.,;:'!|()[] ";
    static constexpr std::u32string_view kWide = U"mwMWOQG@%";
    if (kNarrow.find(c) != std::u32string_view::npos) return 0.45;
    if (kWide.find(c) != std::u32string_view::npos) return 1.1;
    return c >= 0x2E80 ? 1.3 : 0.8;
}

struct MultiText {
    std::string text;
    Point3 position;
    Vector3 direction;
    Vector3 extrusion = kZAxis;
    double rotation = 0;
    double height = 0;
    double referenceWidth = 0;
    double knownWidth = 0;
    double knownHeight = 0;
    double spacing = 1;
    int attachment = 1;
};

MultiText readMultiText(dxf::TagReader tags) {
    MultiText text;
    forEachTag(tags, [&](const dxf::Tag& tag) {
        if (takePoint(tag, 10, text.position) || takePoint(tag, 11, text.direction)) return;
        if (takePoint(tag, 210, text.extrusion)) return;
        switch (tag.code) {
            case 1:
            case 3:
                text.text += tag.text();
                break;
            case 40:
                text.height = tag.numberOr(0);
                break;
            case 41:
                text.referenceWidth = tag.numberOr(0);
                break;
            case 42:
                text.knownWidth = tag.numberOr(0);
                break;
            case 43:
                text.knownHeight = tag.numberOr(0);
                break;
            case 44:
                text.spacing = tag.numberOr(1);
                break;
            case 50:
                text.rotation = radiansOf(tag.numberOr(0));
                break;
            case 71:
                text.attachment = static_cast<int>(tag.integerOr(1));
                break;
            default:
                break;
        }
    });
    return text;
}

/// Width and height by the text alone, lines wrapped at the reference width.
void estimate(const MultiText& text, double& width, double& height) {
    const std::string plain = plainMText(text.text);
    double lines = 0;
    for (std::size_t begin = 0; begin <= plain.size();) {
        const std::size_t end = std::min(plain.find('\n', begin), plain.size());
        const double line = textWidth(std::string_view(plain).substr(begin, end - begin), text.height);
        const bool wraps = text.referenceWidth > 0 && line > text.referenceWidth;
        lines += wraps ? std::ceil(line / text.referenceWidth) : 1;
        width = std::max(width, wraps ? text.referenceWidth : line);
        begin = end + 1;
    }
    height = text.height * (1 + kDescent + (lines - 1) * kLinePitch * text.spacing);
}

}  // namespace

double textWidth(std::string_view line, double height) {
    double sum = 0;
    for (std::size_t at = 0; at < line.size();) {
        if (line.substr(at, 2) == "%%" && at + 2 < line.size()) {
            // %%u and %%o switch lines under and over the text; %%nnn is a character by number.
            const char code = static_cast<char>(line[at + 2] | 0x20);
            const bool isNumber = line[at + 2] >= '0' && line[at + 2] <= '9';
            at = std::min(line.size(), at + (isNumber ? 5 : 3));
            if (code != 'u' && code != 'o') sum += 0.8;
            continue;
        }
        sum += advance(basic::nextCharacter(line, at));
    }
    return sum * height;
}

std::string plainMText(std::string_view content) {
    std::string result;
    for (std::size_t at = 0; at < content.size(); ++at) {
        const char c = content[at];
        if (c == '{' || c == '}') continue;
        if (c != '\\' || at + 1 == content.size()) {
            result += c;
            continue;
        }
        const char code = content[++at];
        switch (code) {
            case 'P':
            case 'X':
            case 'N':
                result += '\n';
                break;
            case '~':
                result += ' ';
                break;
            case 'L':
            case 'l':
            case 'O':
            case 'o':
            case 'K':
            case 'k':
                break;
            case 'S': {
                // A stacked fraction: its two parts side by side are about as wide as they are drawn.
                const std::size_t end = std::min(content.find(';', at), content.size());
                result += content.substr(at + 1, end - at - 1);
                at = end;
                break;
            }
            case 'A':
            case 'C':
            case 'c':
            case 'F':
            case 'f':
            case 'H':
            case 'Q':
            case 'T':
            case 'W':
            case 'p':
                at = std::min(content.find(';', at), content.size());
                break;
            default:
                result += code;
                break;
        }
    }
    return result;
}

TextBox readTextBox(dxf::TagReader tags, bool showsTag) {
    const LineText text = readLineText(tags);
    const std::string& shown = text.isDefinition && showsTag ? text.tag : text.text;
    if (text.invisible && !(text.isDefinition && showsTag)) return std::nullopt;
    if (basic::trim(shown).empty() || !(text.height > 0)) return std::nullopt;
    double height = text.height;
    double width = textWidth(shown, height) * std::abs(text.widthFactor);
    const bool justified = text.hasAlignment && (text.horizontal != kLeft || text.vertical != 0);
    Point3 anchor = justified ? text.alignment : text.position;
    double rotation = text.rotation;
    int horizontal = justified ? text.horizontal : kLeft;
    if (horizontal == kAligned || horizontal == kFit) {
        // Stretched between two points; an aligned text keeps its proportions.
        const Vector3 base = text.alignment - text.position;
        const double stretched = length(base);
        if (horizontal == kAligned && width > 0) height *= stretched / width;
        width = stretched;
        anchor = text.position;
        rotation = std::atan2(base.y, base.x);
        horizontal = kLeft;
    }
    Transform frame = Transform::rotationZ(rotation);
    frame.yAxis = frame.yAxis + frame.xAxis * std::tan(text.oblique);
    if ((text.generation & 2) != 0) frame.xAxis = -frame.xAxis;
    if ((text.generation & 4) != 0) frame.yAxis = -frame.yAxis;
    frame.origin = anchor;
    const Extent extent = place(horizontal, justified ? text.vertical : 0, width, height);
    return corners(extent, objectToWorld(text.extrusion) * frame);
}

TextBox readMTextBox(dxf::TagReader tags) {
    const MultiText text = readMultiText(tags);
    if (text.text.empty() || !(text.height > 0)) return std::nullopt;
    double width = text.knownWidth;
    double height = text.knownHeight;
    if (!(width > 0 && height > 0)) estimate(text, width, height);

    // Attachment runs from 1, top left, over 3, top right, to 9, bottom right.
    const int place = std::clamp(text.attachment, 1, 9) - 1;
    Extent extent;
    const int column = place % 3;
    const int row = place / 3;
    extent.left = -width * column / 2;
    extent.right = extent.left + width;
    extent.top = height * row / 2;
    extent.bottom = extent.top - height;

    Transform frame = objectToWorld(text.extrusion);
    if (text.direction == Vector3{}) {
        frame = frame * Transform::rotationZ(text.rotation);
    } else {
        frame.xAxis = normalized(text.direction);
        frame.yAxis = normalized(cross(frame.zAxis, frame.xAxis));
    }
    frame.origin = text.position;
    return corners(extent, frame);
}

}  // namespace drawing
