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

/// The right dock's page while a replacement is prepared.
class ReplacementPage : public QWidget {
    Q_OBJECT

  public:
    explicit ReplacementPage(QWidget* parent = nullptr);
    void show(const ReplacementView& view);
    void setScheme(Scheme scheme);
    /// The box of a block's picture.
    static QSize pictureBox() { return {252, 128}; }

  private:
    void addRows(QVBoxLayout* into, const QString& title,
                 const std::vector<std::pair<QString, QString>>& rows, bool arrows);

    PanelHead* head_;
    QLabel* fromPicture_;
    QLabel* toPicture_;
    QLabel* from_;
    QLabel* to_;
    QLabel* fromCount_;
    QLabel* toCount_;
    QLabel* arrow_;
    QWidget* body_;
    QVBoxLayout* rows_;
};

}  // namespace window
