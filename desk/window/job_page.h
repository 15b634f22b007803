#pragma once

#include "desk/window/theme.h"

#include <QPixmap>
#include <QString>
#include <QWidget>
#include <utility>
#include <vector>

class QGridLayout;
class QLabel;
class QVBoxLayout;

namespace window {

class PanelHead;

/// What the page of a replacement tells: both blocks, where attribute values go, and what is replaced.
struct ReplacementView {
    QString from;
    QString to;
    QPixmap fromPicture;
    QPixmap toPicture;
    std::size_t fromReferences = 0;
    std::size_t toReferences = 0;
    /// Tag and the tag that it feeds; an empty second one is dropped.
    std::vector<std::pair<QString, QString>> values;
    /// Name and number: the references by space, invisible ones.
    std::vector<std::pair<QString, QString>> counts;
    QString note;
};

/// What the page of an insertion tells.
struct InsertionView {
    QString block;
    QPixmap picture;
    std::vector<std::pair<QString, QString>> counts;
    std::vector<std::pair<QString, QString>> faults;  ///< row and reason
    QString note;
};

/// The right dock's page while a replacement or an insertion is prepared.
class JobPage : public QWidget {
    Q_OBJECT

  public:
    explicit JobPage(QWidget* parent = nullptr);
    void show(const ReplacementView& view);
    void show(const InsertionView& view);
    void setScheme(Scheme scheme);
    /// The box of a block's picture.
    static QSize pictureBox() { return {252, 128}; }

  private:
    enum class Rows { Feeding, Counts, Faults };
    void addRows(const QString& title, const std::vector<std::pair<QString, QString>>& rows, Rows kind);
    void addNote(const QString& text);
    void clearRows();

    PanelHead* head_;
    QLabel* fromPicture_;
    QLabel* toPicture_;
    QLabel* from_;
    QLabel* to_;
    QLabel* fromCount_;
    QLabel* toCount_;
    QLabel* arrow_;
    QWidget* second_;  ///< arrow and the block that comes
    QWidget* body_;
    QVBoxLayout* rows_;
};

}  // namespace window
