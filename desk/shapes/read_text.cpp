#include "desk/shapes/read_text.h"

#include "basic/text.h"
#include "desk/geometry/transform.h"
#include "desk/shapes/mtext_layout.h"
#include "desk/shapes/read_tags.h"
#include "desk/shapes/text_codes.h"

#include <algorithm>
#include <string>

namespace shapes {

namespace {

/// A line of text as TEXT, ATTRIB and ATTDEF store it, in object coordinates.
struct LineText {
    std::string text;
    std::string tag;
    std::string style;
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
            case 7:
                text.style = tag.text();
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

struct MultiText {
    std::string text;
    Point3 position;
    Vector3 direction;
    Vector3 extrusion = kZAxis;
    double rotation = 0;
    double height = 0;
    double referenceWidth = 0;
    double spacing = 1;
    bool exactSpacing = false;
    int attachment = 1;
    std::string style;
    std::int64_t ground = 0;  ///< group 90
    double groundScale = 1.5;
    std::optional<std::int32_t> groundColor;
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
            case 7:
                text.style = tag.text();
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
            case 45:
                text.groundScale = tag.numberOr(1.5);
                break;
            case 63:
                text.groundColor =
                    TextPiece::kPaletteBit | static_cast<std::int32_t>(tag.integerOr(0) & 0xFF);
                break;
            case 90:
                text.ground = tag.integerOr(0);
                break;
            case 421:
                text.groundColor = static_cast<std::int32_t>(tag.integerOr(0) & 0xFFFFFF);
                break;
            case 73:
                text.exactSpacing = tag.integerOr(1) == 2;
                break;
            default:
                break;
        }
    });
    return text;
}

/// A line of text as laid out: its stretches, and the frame that leads from capital heights along the
/// line, slant and mirroring included, to world coordinates.
struct PlacedLine {
    std::vector<TextStretch> stretches;
    Transform frame;
    double width = 0;    ///< along the frame's X, in capital heights
    double stretch = 1;  ///< of every character, so that an aligned or fitted line fills its width
    Extent extent;       ///< in capital heights, the anchor at (0, 0)
};

/// Whether it hangs on its alignment point.
bool isJustified(const LineText& text) {
    return text.hasAlignment && (text.horizontal != kLeft || text.vertical != 0);
}

std::optional<PlacedLine> placeLine(const LineText& text, const TextFont& font, bool showsTag) {
    const std::string& shown = text.isDefinition && showsTag ? text.tag : text.text;
    if (text.invisible && !(text.isDefinition && showsTag)) return std::nullopt;
    if (basic::trim(shown).empty() || !(text.height > 0)) return std::nullopt;
    PlacedLine line;
    line.stretches = decodeLine(shown);
    double natural = 0;
    for (const TextStretch& stretch : line.stretches) natural += textAdvance(stretch.text, font);
    double height = text.height;
    double widthFactor = std::abs(text.widthFactor);
    const bool justified = isJustified(text);
    Point3 anchor = justified ? text.alignment : text.position;
    double rotation = text.rotation;
    int horizontal = justified ? text.horizontal : kLeft;
    if (horizontal == kAligned || horizontal == kFit) {
        // Stretched between two points; an aligned text keeps its proportions.
        const Vector3 base = text.alignment - text.position;
        const double stretched = length(base);
        const double unstretched = natural * height * widthFactor;
        if (horizontal == kAligned && unstretched > 0) height *= stretched / unstretched;
        if (horizontal == kFit && unstretched > 0) widthFactor *= stretched / unstretched;
        anchor = text.position;
        rotation = std::atan2(base.y, base.x);
        horizontal = kLeft;
    }
    line.width = natural * widthFactor;
    line.stretch = widthFactor;
    Transform frame = Transform::rotationZ(rotation);
    frame.yAxis = frame.yAxis + frame.xAxis * std::tan(text.oblique);
    if ((text.generation & 2) != 0) frame.xAxis = -frame.xAxis;
    if ((text.generation & 4) != 0) frame.yAxis = -frame.yAxis;
    frame.xAxis = frame.xAxis * height;
    frame.yAxis = frame.yAxis * height;
    frame.origin = anchor;
    line.extent = place(horizontal, justified ? text.vertical : 0, line.width, 1);
    line.frame = objectToWorld(text.extrusion) * frame;
    return line;
}

std::vector<TextPiece> readLinePieces(const LineText& text, const TextFont& font, bool showsTag) {
    std::vector<TextPiece> result;
    const std::optional<PlacedLine> line = placeLine(text, font, showsTag);
    if (!line) return result;
    double at = line->extent.left;
    for (const TextStretch& stretch : line->stretches) {
        TextPiece piece;
        piece.width = textAdvance(stretch.text, font);
        piece.text = stretch.text;
        piece.font = font;
        piece.underlined = stretch.underlined;
        piece.overlined = stretch.overlined;
        piece.struckOut = stretch.struckOut;
        piece.frame = line->frame;
        piece.frame.xAxis = piece.frame.xAxis * line->stretch;
        piece.frame.origin = line->frame.apply({at, line->extent.bottom + kDescent, 0});
        at += piece.width * line->stretch;
        result.push_back(std::move(piece));
    }
    return result;
}

/// An MTEXT as laid out, and where its upper left corner stands.
struct PlacedMText {
    MTextLayout layout;
    Transform frame;
};

std::optional<PlacedMText> placeMText(const MultiText& text, const TextStyle& style) {
    if (text.text.empty() || !(text.height > 0)) return std::nullopt;
    // Attachment runs from 1, top left, over 3, top right, to 9, bottom right.
    const int attachment = std::clamp(text.attachment, 1, 9) - 1;
    const int column = attachment % 3;
    const int row = attachment / 3;
    MTextFormat format;
    format.height = text.height;
    format.width = text.referenceWidth;
    format.widthFactor = style.widthFactor;
    format.oblique = style.oblique;
    format.spacing = text.spacing;
    format.exactSpacing = text.exactSpacing;
    format.column = column;
    format.font = style.font;
    PlacedMText placed;
    placed.layout = layOutMText(text.text, format);

    Transform frame = objectToWorld(text.extrusion);
    if (text.direction == Vector3{}) {
        frame = frame * Transform::rotationZ(text.rotation);
    } else {
        frame.xAxis = normalized(text.direction);
        frame.yAxis = normalized(cross(frame.zAxis, frame.xAxis));
    }
    frame.origin = text.position;
    const Vector3 corner{-placed.layout.width * column / 2, placed.layout.height * row / 2, 0};
    placed.frame = frame * Transform::translation(corner);
    return placed;
}

}  // namespace

TextBox readTextBox(dxf::TagReader tags, const TextStyles& styles, bool showsTag) {
    const LineText text = readLineText(tags);
    const std::optional<PlacedLine> line = placeLine(text, styles.find(text.style).font, showsTag);
    if (!line) return std::nullopt;
    return corners(line->extent, line->frame);
}

TextBox readMTextBox(dxf::TagReader tags, const TextStyles& styles) {
    const MultiText text = readMultiText(tags);
    const std::optional<PlacedMText> placed = placeMText(text, styles.find(text.style));
    if (!placed) return std::nullopt;
    return corners({placed->layout.left, placed->layout.right, -placed->layout.height, 0}, placed->frame);
}

std::optional<TextGround> readMTextGround(dxf::TagReader tags, const TextStyles& styles) {
    enum : std::int64_t { kFill = 1, kGroundColor = 2, kFrame = 16 };
    const MultiText text = readMultiText(tags);
    if ((text.ground & (kFill | kGroundColor | kFrame)) == 0) return std::nullopt;
    const std::optional<PlacedMText> placed = placeMText(text, styles.find(text.style));
    if (!placed) return std::nullopt;
    TextGround ground;
    const double edge = (text.groundScale - 1) * text.height;
    const MTextLayout& layout = placed->layout;
    const auto [a, b, c, d] =
        corners({layout.left - edge, layout.right + edge, -layout.height - edge, edge}, placed->frame);
    ground.border = {LineCurve{a, b}, LineCurve{b, c}, LineCurve{c, d}, LineCurve{d, a}};
    ground.isFilled = (text.ground & (kFill | kGroundColor)) != 0;
    if ((text.ground & kGroundColor) == 0) ground.color = text.groundColor;
    ground.isFramed = (text.ground & kFrame) != 0;
    return ground;
}

Point3 readInsertion(dxf::TagReader tags, bool isMText) {
    if (isMText) return readMultiText(tags).position;
    const LineText text = readLineText(tags);
    const bool isStretched = text.horizontal == kAligned || text.horizontal == kFit;
    const bool byAlignment = isJustified(text) && !isStretched;
    return objectToWorld(text.extrusion).apply(byAlignment ? text.alignment : text.position);
}

std::vector<TextPiece> readTexts(const Drawing& drawing, const TextStyles& styles, EntityId id,
                                 bool showsTag) {
    if (drawing.type(id) != "MTEXT") {
        const LineText text = readLineText(drawing.tags(id));
        return readLinePieces(text, styles.find(text.style).font, showsTag);
    }
    const MultiText text = readMultiText(drawing.tags(id));
    std::optional<PlacedMText> placed = placeMText(text, styles.find(text.style));
    if (!placed) return {};
    for (TextPiece& piece : placed->layout.pieces) piece.frame = placed->frame * piece.frame;
    return std::move(placed->layout.pieces);
}

std::vector<TextPiece> readDefinitionTexts(const Drawing& drawing, const TextStyles& styles, EntityId id,
                                           const std::string& text) {
    LineText definition = readLineText(drawing.tags(id));
    definition.text = text;
    return readLinePieces(definition, styles.find(definition.style).font, false);
}

}  // namespace shapes
