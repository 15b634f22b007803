#include "extract/block_table.h"

#include "host/object.h"

namespace extract {
namespace {

constexpr forms::Twips kNumberWidth = 400;
constexpr forms::Twips kColumnWidth = 700;

/// The columns before those of the attributes, after the number.
constexpr const char* kHeaders[] = {"X insertion", "Y insertion", "Z insertion", "Ech. X",
                                    "Ech. Y",      "Ech. Z",      "Rotation"};
/// Index of the sub-item that follows them.
constexpr std::int16_t kFirstAttribute = 8;

std::int16_t next(std::int16_t column) { return basic::toInt16(column + 1.0); }

void addRow(forms::ListView& table, std::int32_t number, const host::BlockReference& reference,
            const host::BlockReference& model, const basic::Regional& regional) {
    const auto text = [&](auto value) { return basic::toText(value, regional); };
    forms::ListItem& row = table.listItems().add(text(number));
    const host::Point point = host::toPoint(reference.InsertionPoint());
    row.setSubItem(1, text(point[0]));
    row.setSubItem(2, text(point[1]));
    row.setSubItem(3, text(point[2]));
    row.setSubItem(4, text(reference.XScaleFactor()));
    row.setSubItem(5, text(reference.YScaleFactor()));
    row.setSubItem(6, text(reference.ZScaleFactor()));
    row.setSubItem(7, text(reference.Rotation()));

    std::int16_t column = kFirstAttribute;
    if (model.hasAttributes()) {  // the model's, not this row's
        const host::Attributes attributes = reference.GetAttributes();
        for (std::size_t i = 0; i < attributes.size(); ++i) {
            row.setSubItem(column, attributes.at(i).TextString());
            column = next(column);
        }
    }
    row.setSubItem(column, reference.Layer());
    row.setSubItem(next(column), text(reference.Color()));
}

}  // namespace

void addColumns(forms::ListView& table, const host::BlockReference& model, SkipAtFirst& regime) {
    forms::ColumnHeaders& headers = table.columnHeaders();
    regime.run([&] { headers.add("N°", kNumberWidth); });
    for (const char* header : kHeaders) regime.run([&] { headers.add(header, kColumnWidth); });
    if (regime.test([&] { return model.hasAttributes(); })) {
        regime.run([&] {
            const host::Attributes attributes = model.GetAttributes();
            for (std::size_t i = 0; i < attributes.size(); ++i)
                regime.run([&] { headers.add(attributes.at(i).TagString(), kColumnWidth); });
        });
    }
    regime.run([&] { headers.add("Calque", kColumnWidth); });
    regime.run([&] { headers.add("Couleur", kColumnWidth); });
}

void addRows(forms::ListView& table, const host::SelectionSet& set, const host::BlockReference& model,
             const basic::Regional& regional) {
    const std::int32_t count = set.Count();
    for (std::int32_t i = 0; i < count; ++i)
        addRow(table, i + 1, host::BlockReference(set.Item(i)), model, regional);
}

}  // namespace extract
