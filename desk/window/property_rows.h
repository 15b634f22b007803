#pragma once

#include "desk/drawing/drawing.h"

#include <QString>
#include <QStringList>
#include <functional>
#include <optional>
#include <vector>

namespace window {

/// How a property is edited.
enum class PropertyEdit { None, Text, Number, Layer, Color, YesNo };

/// One property of the selected entities.
struct PropertyRow {
    QString label;
    QString value;  ///< as shown; of entities that differ empty, with `varies`
    bool varies = false;
    bool isNumber = false;  ///< shown in the fixed font
    PropertyEdit edit = PropertyEdit::None;
    int color = -1;  ///< a colour's number, for its swatch
    /// Gives one entity the value; raises basic::Error, also for a text of another form.
    std::function<void(drawing::Drawing&, drawing::EntityId, const QString&)> apply;
};

struct PropertyGroup {
    QString title;
    std::vector<PropertyRow> rows;
    bool folded = false;
    bool counted = false;  ///< its number of rows stands in its head
};

/// What the panel shows at its top.
struct PropertyTitle {
    QString name;                                ///< the block, the kind of entity, or "3 selected"
    QString kind;                                ///< second line
    QString handle;                              ///< third line
    drawing::BlockId block = drawing::kNoBlock;  ///< for its picture
};

PropertyTitle propertyTitle(const drawing::Drawing& drawing, const std::vector<drawing::EntityId>& entities);
/// Attributes first, then general, placement and the block's definition. Properties that not all entities
/// have are left out; values that differ give "varies".
std::vector<PropertyGroup> propertyGroups(const drawing::Drawing& drawing,
                                          const std::vector<drawing::EntityId>& entities);

/// A number as it is typed: a point or a comma for the decimals. Raises kInvalidInput.
double typedNumber(const QString& text);

}  // namespace window
