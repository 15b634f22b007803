#pragma once

#include <QHash>
#include <QString>
#include <QTranslator>
#include <filesystem>
#include <string>

namespace window {

/// The window's own texts in a language: a file of lines "English text = translation", "#" in front of a
/// comment, "\n" for a line's end. A text that counts ("%n references") has two translations, " | " between
/// them: for one and for more; "zero = one" tells that the language counts nothing as one. What the file
/// lacks stays as the code has it.
class Translation : public QTranslator {
    Q_OBJECT

  public:
    using QTranslator::QTranslator;

    /// Texts from a file in UTF-8; an absent file gives none.
    void read(const QString& path);
    bool isEmpty() const override { return texts_.isEmpty(); }
    QString translate(const char* context, const char* source, const char* disambiguation = nullptr,
                      int count = -1) const override;

  private:
    QHash<QByteArray, QString> texts_;
    bool zeroIsOne_ = false;
};

/// The file of a language's display name ("Français"); of a name without a file the English one.
QString translationFile(const std::string& language);

}  // namespace window
