#include "faces/qt/qt_text.h"

#include "basic/shown_text.h"
#include "basic/text.h"

#include <QTextDocument>

namespace qt_face {

QString toShown(std::string_view text) {
    return toQt(basic::shownText(basic::replaceAll(text, "\r\n", "\n")));
}

std::string fromShown(std::string_view before, const QString& edited) {
    return basic::meantText(basic::replaceAll(before, "\r\n", "\n"), fromQt(edited));
}

QString plainTip(const QString& text) {
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

}  // namespace qt_face
