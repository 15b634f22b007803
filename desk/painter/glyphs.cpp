#include "desk/painter/glyphs.h"

#include <QFontMetricsF>
#include <QTransform>

namespace painter {

namespace {

/// Large enough that hinting doesn't move an outline.
constexpr int kPixels = 128;
constexpr int kMostOutlines = 50'000;

int keyOf(const shapes::TextFont& font) {
    return static_cast<int>(font.kind) * 4 + (font.bold ? 2 : 0) + (font.italic ? 1 : 0);
}

}  // namespace

const Glyphs::Face& Glyphs::face(const shapes::TextFont& font) {
    const int key = keyOf(font);
    const auto found = faces_.constFind(key);
    if (found != faces_.constEnd()) return *found;
    using Kind = shapes::TextFont::Kind;
    // The first of these that is installed has the widths that texts are laid out with.
    const QStringList families =
        font.kind == Kind::Mono
            ? QStringList{"Liberation Mono", "Courier New", "DejaVu Sans Mono", "monospace"}
        : font.kind == Kind::Serif
            ? QStringList{"Liberation Serif", "Times New Roman", "DejaVu Serif", "serif"}
            : QStringList{"Liberation Sans", "Arial", "Arimo", "DejaVu Sans", "sans-serif"};
    Face face;
    face.font.setFamilies(families);
    face.font.setPixelSize(kPixels);
    face.font.setBold(font.bold);
    face.font.setItalic(font.italic);
    face.font.setHintingPreference(QFont::PreferNoHinting);
    face.font.setStyleStrategy(QFont::PreferOutline);
    face.capital = QFontMetricsF(face.font).capHeight();
    if (!(face.capital > 0)) face.capital = kPixels * 0.7;
    return *faces_.insert(key, face);
}

const TextOutline& Glyphs::outline(const shapes::TextPiece& piece) {
    const QString text = QString::fromStdString(piece.text);
    const QString key = QChar(static_cast<char16_t>(0xE000 + keyOf(piece.font))) + text;
    const auto found = outlines_.constFind(key);
    if (found != outlines_.constEnd()) return *found;
    if (outlines_.size() > kMostOutlines) outlines_.clear();
    const Face& face = this->face(piece.font);
    QPainterPath path;
    path.addText(0, 0, face.font, text);
    TextOutline outline;
    outline.path = QTransform::fromScale(1 / face.capital, 1 / face.capital).map(path);
    outline.width = QFontMetricsF(face.font).horizontalAdvance(text) / face.capital;
    return *outlines_.insert(key, outline);
}

}  // namespace painter
