#pragma once

#include "desk/window/property_rows.h"
#include "desk/window/theme.h"

#include <QPixmap>
#include <QWidget>
#include <functional>
#include <set>

class QLabel;
class QScrollArea;
class QVBoxLayout;

namespace window {

class PanelHead;
class PropertyField;

/// The properties of what is selected. Values look like text and become fields under the mouse or by Tab;
/// Enter or leaving takes what was typed, Esc gives back what stood there.
class PropertiesPanel : public QWidget {
    Q_OBJECT

  public:
    using Picture = std::function<QPixmap(drawing::BlockId block, QSize box)>;
    /// Asks for an edit of all entities shown, as one undo step of that name.
    using Edit = std::function<void(const QString& name, std::function<void(drawing::Drawing&)> change)>;

    PropertiesPanel(Picture picture, Edit edit, QWidget* parent = nullptr);

    /// Shows entities anew; null for no drawing.
    void show(const drawing::Drawing* drawing, const std::vector<drawing::EntityId>& entities);
    void setScheme(Scheme scheme);
    void focusFirst();
    void retranslate();

  private:
    void clear();
    void addTitle(const PropertyTitle& title);
    void addGroup(const PropertyGroup& group);
    QWidget* addRow(const PropertyRow& row);
    void apply(const PropertyRow& row, const QString& value);
    void rebuild();

    Picture picture_;
    Edit edit_;
    PanelHead* head_;
    QScrollArea* area_;
    QWidget* body_;
    QVBoxLayout* column_;
    const drawing::Drawing* drawing_ = nullptr;
    std::vector<drawing::EntityId> entities_;
    std::set<QString> folded_;    ///< groups that the user folded
    std::set<QString> unfolded_;  ///< groups that are folded at first and that the user opened
    Scheme scheme_ = Scheme::Dark;
    QString focused_;  ///< label of the field that had the focus before a rebuild
};

}  // namespace window
