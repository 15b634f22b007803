#pragma once

#include <QHash>
#include <QString>
#include <QTranslator>
#include <filesystem>
#include <string>

namespace window {

/// The window's own texts in another language: a file of lines "English text = translation", "#" in front of
/// a comment, "\n" for a line's end. What the file lacks stays English.
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
};

/// The file of a language's display name ("Français"); the language of a name without a file is English.
QString translationFile(const std::string& language);

}  // namespace window
