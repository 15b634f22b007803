#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace qt_face {

/// Texts are UTF-8 in the model. This is for names and paths that the program goes by; what a user sees is
/// `toShown`.
inline QString toQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline std::string fromQt(const QString& text) { return text.toStdString(); }

/// A text as a widget shows it: with no control character that a drawing or a file brought
/// (basic::shownText), and lines that end in a line feed.
QString toShown(std::string_view text);
inline QString toShown(const QString& text) { return toShown(std::string_view(text.toStdString())); }
inline QString toShown(const char* text) { return toShown(std::string_view(text)); }
/// What a text means that was shown in a field and edited there to `edited`.
std::string fromShown(std::string_view before, const QString& edited);

/// A text for a tool tip, which takes what looks like markup for it.
QString plainTip(const QString& text);

}  // namespace qt_face
