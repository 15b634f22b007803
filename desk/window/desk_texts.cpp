#include "desk/window/desk_texts.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <vector>

namespace window {

namespace {

// The first that fits counts, so the longer ones stand in front.
constexpr const char* kTexts[] = {
    QT_TRANSLATE_NOOP("window", "Opened %1 with the changes of the session before"),
    QT_TRANSLATE_NOOP("window", "Opened %1"),
    QT_TRANSLATE_NOOP("window", "Saved %1"),
    QT_TRANSLATE_NOOP("window", "It is open already: %1"),
    QT_TRANSLATE_NOOP("window", "A DWG drawing was converted; it is saved as DXF: %1"),
    QT_TRANSLATE_NOOP("window", "Its folder takes no new files, so the file itself was written."),
    QT_TRANSLATE_NOOP("window", "Its other names (hard links) go on naming the drawing of before."),
    QT_TRANSLATE_NOOP("window", "The copy of what isn't saved can't be kept: %1"),
    QT_TRANSLATE_NOOP(
        "window", "A session before ended without saving its changes to %1. Work on with the copy of them?"),
    QT_TRANSLATE_NOOP("window", "%1 was changed by another program since it was opened. Write over it?"),
    QT_TRANSLATE_NOOP("window", "%1 is open elsewhere: %2. Write over it?"),
    QT_TRANSLATE_NOOP("window", "Not saved"),
    QT_TRANSLATE_NOOP("window", "Error %1: %2"),
    QT_TRANSLATE_NOOP("window", "Current layer: %1"),
    QT_TRANSLATE_NOOP("window", "Picture written: %1"),
    QT_TRANSLATE_NOOP("window", "%1 erased, %2 left on locked layers"),
    QT_TRANSLATE_NOOP("window", "%1 erased"),
    QT_TRANSLATE_NOOP("window", "%1 findings on reading:"),
    QT_TRANSLATE_NOOP("window", "1 finding on reading:"),
    QT_TRANSLATE_NOOP("window", "Unknown command \"%1\"."),
    QT_TRANSLATE_NOOP("window", "References  Block"),
    QT_TRANSLATE_NOOP("window", "%1 references"),
    QT_TRANSLATE_NOOP("window", "%1 reference"),
    QT_TRANSLATE_NOOP("window", "%1 selected"),
    QT_TRANSLATE_NOOP("window", "%1 blocks purged"),
    QT_TRANSLATE_NOOP("window", "%1 block purged"),
    QT_TRANSLATE_NOOP("window",
                      "is no selection: all, w x,y x,y, c x,y x,y, f x,y x,y..., p, l, r, a, first NAME, "
                      "@HANDLE..., a point, or esc"),
    QT_TRANSLATE_NOOP("window", "a window needs two corners, such as w 0,0 10,5"),
    QT_TRANSLATE_NOOP("window", "a fence needs two points or more"),
    QT_TRANSLATE_NOOP("window", "no entity of the drawing has the handle %1"),
    QT_TRANSLATE_NOOP("window", "no reference of %1"),
    QT_TRANSLATE_NOOP("window", "\"%1\" is no handle"),
    QT_TRANSLATE_NOOP("window", "\"%1\" is no point"),
};

struct Pattern {
    const char* text;
    QRegularExpression fits;
};

std::vector<Pattern> makePatterns() {
    std::vector<Pattern> patterns;
    for (const char* text : kTexts) {
        QString expression = QRegularExpression::escape(QString::fromUtf8(text));
        expression.replace("\\%1", "(.+)").replace("\\%2", "(.+)");
        patterns.push_back({text, QRegularExpression(QRegularExpression::anchoredPattern(expression))});
    }
    return patterns;
}

}  // namespace

QString deskText(const QString& line) {
    static const std::vector<Pattern> patterns = makePatterns();
    for (const Pattern& pattern : patterns) {
        const QRegularExpressionMatch match = pattern.fits.match(line);
        if (!match.hasMatch()) continue;
        const QStringList parts = match.capturedTexts().mid(1);
        // Of a text that counts, the first part is the number.
        const int count = parts.isEmpty() ? -1 : parts[0].toInt();
        const QString text = QCoreApplication::translate("window", pattern.text, nullptr, count);
        if (parts.size() == 1) return text.arg(parts[0]);
        if (parts.size() == 2) return text.arg(parts[0], parts[1]);
        return text;
    }
    return line;
}

}  // namespace window
