#pragma once

#include "desk/window/drawing_lists.h"
#include "desk/window/list_panel.h"
#include "desk/window/theme.h"

#include <QAbstractListModel>
#include <QStyledItemDelegate>

namespace window {

/// What a click on a layer's row asks for.
enum class LayerAct { MakeCurrent, SwitchOn, Freeze, Lock, ChooseColor };

class LayerListModel : public QAbstractListModel {
    Q_OBJECT

  public:
    using QAbstractListModel::QAbstractListModel;
    void setRows(std::vector<LayerRow> rows);
    const LayerRow& row(int index) const { return rows_[static_cast<std::size_t>(index)]; }
    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

  private:
    std::vector<LayerRow> rows_;
};

/// Paints a row of 24: current, on, frozen, locked, colour, name, count. A state as it usually is stands at
/// 25 %, so that what deviates is seen.
class LayerDelegate : public QStyledItemDelegate {
    Q_OBJECT

  public:
    explicit LayerDelegate(const LayerListModel& model, QObject* parent);
    void setScheme(Scheme scheme) { scheme_ = scheme; }
    /// What stands at `x` of a row that begins at 0; nothing on the name and behind it.
    static std::optional<LayerAct> actAt(int x);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

  private:
    const LayerListModel& model_;
    Scheme scheme_ = Scheme::Dark;
};

/// The drawing's layers; a click on a state asks for its change.
class LayersPanel : public ListPanel {
    Q_OBJECT

  public:
    explicit LayersPanel(QWidget* parent = nullptr);
    void show(const drawing::Drawing* drawing);
    void setScheme(Scheme scheme);
    void focusList();
    void retranslate();

  signals:
    void actAsked(window::LayerAct act, const QString& layer);
    /// The entities on it are to be selected.
    void selectEntities(const QString& layer);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void filter() override;
    void openMenu(const QPoint& place) override;
    void ask(LayerAct act);
    QString chosen() const;

    QToolButton* searchTool_;
    QToolButton* more_;
    LayerListModel* model_;
    std::vector<LayerRow> rows_;
    bool hasDrawing_ = false;
};

}  // namespace window
