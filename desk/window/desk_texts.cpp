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
