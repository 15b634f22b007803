#include "desk/window/translation.h"

#include "desk/shell/surroundings.h"

#include <QFile>
#include <QTextStream>

namespace window {

void Translation::read(const QString& path) {
    texts_.clear();
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly | QIODevice::Text)) return;
    QTextStream stream(&file);
    for (QString line; stream.readLineInto(&line);) {
        const qsizetype sign = line.indexOf(" = ");
        if (line.startsWith('#') || sign < 0) continue;
        texts_.insert(line.left(sign).replace("\\n", "\n").toUtf8(), line.mid(sign + 3).replace("\\n", "\n"));
    }
}

QString Translation::translate(const char*, const char* source, const char*, int) const {
    return texts_.value(QByteArray(source));
}

QString translationFile(const std::string& language) {
    if (language != "Fran\u00E7ais") return {};
    return QString::fromStdString((shell::resourceFolder() / "window/French.txt").string());
}

}  // namespace window
