#pragma once

#include "desk/window/drawing_lists.h"
#include "desk/window/list_panel.h"
#include "desk/window/theme.h"

#include <QHash>
#include <QPixmap>
#include <functional>
#include <optional>

namespace window {

class BlockListModel;

/// The drawing's blocks: picture, name, tags, references; search in names and tags.
class BlocksPanel : public ListPanel {
    Q_OBJECT

  public:
    /// `picture` draws a block into a box of logical pixels.
    using Picture = std::function<QPixmap(drawing::BlockId block, QSize box)>;

    explicit BlocksPanel(Picture picture, QWidget* parent = nullptr);

    /// Lists the blocks anew; null for no drawing.
    void show(const drawing::Drawing* drawing);
    void setScheme(Scheme scheme);
    /// Pictures are drawn anew.
    void forgetPictures();
    /// Marks a block as the chosen one, without a signal.
    void choose(const QString& block);
    QString chosen() const;
    void focusList();
    void focusSearch();
    bool hidesDimensions() const;
    void setHidesDimensions(bool hide);
    void retranslate();

  signals:
    /// Double click or Enter: its references are to be selected.
    void selectReferences(const QString& block);
    /// From the menu: "VNREPLACE" and its like with this block, or "SHOW".
    void jobAsked(const QString& command, const QString& block);

  private:
    void filter() override;
    void openMenu(const QPoint& place) override;
    void addJob(class QMenu& menu, const QString& text, const QString& command, const QString& block);

    QToolButton* eye_;
    QToolButton* more_;
    QLabel* hiddenCount_;
    BlockListModel* model_;
    std::vector<BlockRow> rows_;
    bool hasDrawing_ = false;
};

}  // namespace window
