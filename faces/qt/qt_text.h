#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace qt_face {

/// Texts are UTF-8 in the model.
inline QString toQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline std::string fromQt(const QString& text) { return text.toStdString(); }

/// A text for a tool tip, which takes what looks like markup for it.
QString plainTip(const QString& text);

}  // namespace qt_face
