#include "desk/window/property_rows.h"

#include "basic/error.h"
#include "desk/drawing/work_watch.h"
#include "desk/dxf/tag_reader.h"
#include "desk/window/color_choice.h"
#include "faces/qt/qt_text.h"

#include <QCoreApplication>
#include <algorithm>
#include <set>

namespace window {

using drawing::Drawing;
using drawing::EntityId;

namespace {

QString text(const char* english, int count = -1) {
    return QCoreApplication::translate("window", english, nullptr, count);
}

constexpr std::string_view kCommonPart = "AcDbEntity";
constexpr double kDegrees = 180 / geometry::kPi;

using Read = std::function<std::optional<QString>(const Drawing&, EntityId)>;

QString figure(double value) { return QString::number(value, 'f', 4); }

/// The first group of a code of an entity; nothing where it is absent.
std::optional<QString> groupText(const Drawing& drawing, EntityId id, int code) {
    dxf::TagReader reader = drawing.tags(id);
    dxf::Tag tag;
    while (reader.next(tag)) {
        if (tag.code == code) return qt_face::toShown(tag.text());
    }
    return std::nullopt;
}

/// Values of the entities in one row; nothing where one of them lacks the property.
std::optional<PropertyRow> common(const Drawing& drawing, const std::vector<EntityId>& entities,
                                  const QString& label, const Read& read) {
    PropertyRow row;
    row.label = label;
    bool isFirst = true;
    drawing::WorkSteps steps;
    for (const EntityId id : entities) {
        steps.step(0, 1);
        const std::optional<QString> value = read(drawing, id);
        if (!value) return std::nullopt;
        if (isFirst) row.value = *value;
        if (*value != row.value) row.varies = true;
        isFirst = false;
    }
    if (row.varies) row.value.clear();
    return row;
}

bool isReference(const Drawing& drawing, EntityId id) { return drawing.type(id) == "INSERT"; }

PropertyGroup attributeGroup(const Drawing& drawing, const std::vector<EntityId>& entities) {
    PropertyGroup group{text("Attributes"), {}, false, true};
    if (!isReference(drawing, entities.front())) return group;
    std::set<std::string> known;
    for (const EntityId first : drawing.attributes(entities.front())) {
        const std::string tag = drawing.attributeTag(first);
        if (!known.insert(tag).second) continue;  // of several with one tag the first
        const auto find = [tag](const Drawing& in, EntityId id) {
            for (const EntityId part : in.attributes(id)) {
                if (in.attributeTag(part) == tag) return part;
            }
            return drawing::kNoEntity;
        };
        auto row = common(drawing, entities, qt_face::toShown(tag),
                          [&find](const Drawing& in, EntityId id) -> std::optional<QString> {
                              const EntityId part = isReference(in, id) ? find(in, id) : drawing::kNoEntity;
                              if (part == drawing::kNoEntity) return std::nullopt;
                              return qt_face::toShown(in.attributeText(part));
                          });
        if (!row) continue;
        row->edit = PropertyEdit::Text;
        row->apply = [find](Drawing& in, EntityId id, const QString& value) {
            const EntityId part = find(in, id);
            in.setAttributeText(part, qt_face::fromShown(in.attributeText(part), value));
        };
        group.rows.push_back(std::move(*row));
    }
    return group;
}

int colorOf(const Drawing& drawing, EntityId id) { return drawing.common(id).color; }

QString byLayerOr(const std::optional<QString>& value) {
    if (!value || value->compare("BYLAYER", Qt::CaseInsensitive) == 0) return text("By layer");
    return value->compare("BYBLOCK", Qt::CaseInsensitive) == 0 ? text("By block") : *value;
}

QString lineWeight(const std::optional<QString>& value) {
    const int weight = value ? value->trimmed().toInt() : -1;
    if (weight == -1) return text("By layer");
    if (weight == -2) return text("By block");
    if (weight == -3) return text("Standard");
    return QString::number(weight / 100.0, 'f', 2) + " mm";
}

PropertyGroup generalGroup(const Drawing& drawing, const std::vector<EntityId>& entities) {
    PropertyGroup group{text("General"), {}};
    const auto add = [&](const char* label, PropertyEdit edit, const Read& read,
                         decltype(PropertyRow::apply) apply) {
        auto row = common(drawing, entities, text(label), read);
        if (!row) return;
        row->edit = edit;
        row->apply = std::move(apply);
        group.rows.push_back(std::move(*row));
    };
    add(
        "Layer", PropertyEdit::Layer,
        [](const Drawing& in, EntityId id) { return qt_face::toShown(in.layerName(id)); },
        [](Drawing& in, EntityId id, const QString& value) {
            in.setText(id, 8, kCommonPart, value.toStdString());
        });
    add(
        "Colour", PropertyEdit::Color,
        [](const Drawing& in, EntityId id) { return colorName(colorOf(in, id)); },
        [](Drawing& in, EntityId id, const QString& value) {
            in.setInteger(id, 62, kCommonPart, value.toInt());
        });
    if (!group.rows.back().varies) group.rows.back().color = colorOf(drawing, entities.front());
    if (group.rows.back().color == drawing::kColorByLayer) {
        group.rows.back().color = drawing.layer(entities.front()).color;
    }
    add("Linetype", PropertyEdit::None,
        [](const Drawing& in, EntityId id) { return byLayerOr(groupText(in, id, 6)); }, {});
    add("Lineweight", PropertyEdit::None,
        [](const Drawing& in, EntityId id) { return lineWeight(groupText(in, id, 370)); }, {});
    add(
        "Visible", PropertyEdit::YesNo,
        [](const Drawing& in, EntityId id) { return in.common(id).visible ? text("Yes") : text("No"); },
        [](Drawing& in, EntityId id, const QString& value) { in.setVisible(id, value == "1"); });
    return group;
}

PropertyGroup placementGroup(const Drawing& drawing, const std::vector<EntityId>& entities) {
    PropertyGroup group{text("Placement"), {}};
    using Get = double (*)(const drawing::InsertData&);
    using Set = void (*)(Drawing&, EntityId, const drawing::InsertData&, double);
    struct Field {
        const char* label;
        Get get;
        Set set;
    };
    using D = drawing::InsertData;
    static const Field kFields[] = {
        {"X", [](const D& data) { return data.insertion.x; },
         [](Drawing& in, EntityId id, const D& data, double value) {
             in.setInsertionPoint(id, {value, data.insertion.y, data.insertion.z});
         }},
        {"Y", [](const D& data) { return data.insertion.y; },
         [](Drawing& in, EntityId id, const D& data, double value) {
             in.setInsertionPoint(id, {data.insertion.x, value, data.insertion.z});
         }},
        {"Z", [](const D& data) { return data.insertion.z; },
         [](Drawing& in, EntityId id, const D& data, double value) {
             in.setInsertionPoint(id, {data.insertion.x, data.insertion.y, value});
         }},
        {"Rotation", [](const D& data) { return data.placement.rotation * kDegrees; },
         [](Drawing& in, EntityId id, const D&, double value) { in.setRotation(id, value / kDegrees); }},
        {"X scale", [](const D& data) { return data.placement.scale.x; },
         [](Drawing& in, EntityId id, const D& data, double value) {
             in.setScale(id, {value, data.placement.scale.y, data.placement.scale.z});
         }},
        {"Y scale", [](const D& data) { return data.placement.scale.y; },
         [](Drawing& in, EntityId id, const D& data, double value) {
             in.setScale(id, {data.placement.scale.x, value, data.placement.scale.z});
         }},
        {"Z scale", [](const D& data) { return data.placement.scale.z; },
         [](Drawing& in, EntityId id, const D& data, double value) {
             in.setScale(id, {data.placement.scale.x, data.placement.scale.y, value});
         }},
    };
    for (const Field& field : kFields) {
        const bool isAngle = std::string_view(field.label) == "Rotation";
        auto row = common(drawing, entities, text(field.label),
                          [&](const Drawing& in, EntityId id) -> std::optional<QString> {
                              if (!isReference(in, id)) return std::nullopt;
                              const double value = field.get(in.insert(id));
                              return isAngle ? QString::number(value, 'f', 2) + "°" : figure(value);
                          });
        if (!row) return group;
        row->isNumber = true;
        row->edit = PropertyEdit::Number;
        row->apply = [&field](Drawing& in, EntityId id, const QString& value) {
            field.set(in, id, in.insert(id), typedNumber(value));
        };
        group.rows.push_back(std::move(*row));
    }
    return group;
}

/// What the definition of the block says; of one block alone.
PropertyGroup definitionGroup(const Drawing& drawing, drawing::BlockId id) {
    PropertyGroup group{text("Block definition"), {}, true};
    const drawing::Block& block = drawing.blocks()[id];
    const auto add = [&group](const char* label, const QString& value, bool isNumber) {
        PropertyRow row;
        row.label = text(label);
        row.value = value;
        row.isNumber = isNumber;
        group.rows.push_back(std::move(row));
    };
    add("Base X", figure(block.basePoint.x), true);
    add("Base Y", figure(block.basePoint.y), true);
    add("Entities", QString::number(drawing.entityCount(id)), true);
    add("Attributes", QString::number(block.attributeDefinitions.size()), true);
    if (block.isXRef()) add("File", qt_face::toShown(block.xrefPath), false);
    return group;
}

/// The block that all are references of; kNoBlock where they aren't of one.
drawing::BlockId commonBlock(const Drawing& drawing, const std::vector<EntityId>& entities) {
    drawing::BlockId block = drawing::kNoBlock;
    for (const EntityId id : entities) {
        if (!isReference(drawing, id)) return drawing::kNoBlock;
        const drawing::BlockId own = drawing.insert(id).block;
        if (block != drawing::kNoBlock && own != block) return drawing::kNoBlock;
        block = own;
    }
    return block;
}

}  // namespace

double typedNumber(const QString& typed) {
    QString plain = typed.trimmed();
    plain.remove(QChar(0x00B0));
    if (!plain.contains('.')) plain.replace(',', '.');
    bool isNumber = false;
    const double value = plain.toDouble(&isNumber);
    if (!isNumber)
        throw basic::Error(drawing::kInvalidInput, text("\"%1\" is no number").arg(typed).toStdString());
    return value;
}

PropertyTitle propertyTitle(const Drawing& drawing, const std::vector<EntityId>& entities) {
    PropertyTitle title;
    if (entities.empty()) return title;
    title.block = commonBlock(drawing, entities);
    if (title.block != drawing::kNoBlock) title.name = qt_face::toShown(drawing.blocks()[title.block].name);
    if (entities.size() > 1) {
        const QString count = text("%n selected", static_cast<int>(entities.size()));
        title.kind = title.name.isEmpty() ? QString() : count;
        if (title.name.isEmpty()) title.name = count;
        return title;
    }
    const EntityId id = entities.front();
    const QString type = qt_face::toShown(drawing.type(id));
    title.kind = isReference(drawing, id) ? text("Block reference") : text("Entity");
    if (title.name.isEmpty())
        title.name = isReference(drawing, id) ? qt_face::toShown(drawing.name(id)) : type;
    if (drawing.handle(id) != 0)
        title.handle = text("handle %1").arg(QString::number(drawing.handle(id), 16).toUpper());
    return title;
}

std::vector<PropertyGroup> propertyGroups(const Drawing& drawing, const std::vector<EntityId>& entities) {
    std::vector<PropertyGroup> groups;
    if (entities.empty()) return groups;
    const auto add = [&groups](PropertyGroup group) {
        if (!group.rows.empty()) groups.push_back(std::move(group));
    };
    add(attributeGroup(drawing, entities));
    add(generalGroup(drawing, entities));
    add(placementGroup(drawing, entities));
    const drawing::BlockId block = commonBlock(drawing, entities);
    if (block != drawing::kNoBlock) add(definitionGroup(drawing, block));
    return groups;
}

}  // namespace window
