#include "desk/window/translation.h"

#include "desk/shell/surroundings.h"

#include <QFile>
#include <QTextStream>

namespace window {

void Translation::read(const QString& path) {
    texts_.clear();
    zeroIsOne_ = false;
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly | QIODevice::Text)) return;
    QTextStream stream(&file);
    for (QString line; stream.readLineInto(&line);) {
        const qsizetype sign = line.indexOf(" = ");
        if (line.startsWith('#') || sign < 0) continue;
        if (line == "zero = one") zeroIsOne_ = true;
        texts_.insert(line.left(sign).replace("\\n", "\n").toUtf8(), line.mid(sign + 3).replace("\\n", "\n"));
    }
}

QString Translation::translate(const char*, const char* source, const char*, int count) const {
    static const QString kBetween = " | ";
    QString text = texts_.value(QByteArray(source));
    const qsizetype between = text.indexOf(kBetween);
    if (between < 0) return text;
    const bool isOne = count == 1 || (count == 0 && zeroIsOne_);
    return isOne ? text.left(between) : text.mid(between + kBetween.size());
}

QString translationFile(const std::string& language) {
    const char* const name = language == "Fran\u00E7ais" ? "window/French.txt" : "window/English.txt";
    return QString::fromStdString((shell::resourceFolder() / name).string());
}

}  // namespace window
