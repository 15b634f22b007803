#include "desk/window/insertion_plan.h"

#include "basic/error.h"
#include "faces/qt/qt_text.h"
#include "forms/controls.h"
#include "forms/form.h"

#include <QCoreApplication>
#include <array>
#include <cstdlib>
#include <sstream>

namespace window {

namespace {

constexpr std::array<const char*, 10> kNumbers = {"X_",     "Y_",    "Z_",    "DeltaX", "DeltaY",
                                                  "DeltaZ", "Ech.X", "Ech.Y", "Ech.Z",  "Rotation(rd)"};

constexpr const char* kNoNumber = QT_TRANSLATE_NOOP("window", "%1: \"%2\" is no number");

/// Where a parameter's values come from: a column of the table, from 1, or a constant.
struct Source {
    int column = 0;
    std::string constant;
};

Source sourceOf(const forms::ListView& parameters, const forms::ListView& table, const std::string& name) {
    const forms::ListItems& items = parameters.listItems();
    int row = 1;
    while (row <= items.count() && items.item(row).text() != name) ++row;
    if (row > items.count()) return {};
    Source source{0, items.item(row).subItem(1)};
    for (int column = 1; column <= table.columnHeaders().count() && source.column == 0; ++column) {
        if (table.columnHeaders().item(column).text == source.constant) source.column = column;
    }
    return source;
}

}  // namespace

InsertionPlan insertionPlan(forms::Form& form, const basic::Regional& regional) {
    const auto* parameters = dynamic_cast<const forms::ListView*>(form.findControl("ListView1"));
    const auto* table = dynamic_cast<const forms::ListView*>(form.findControl("ListView2"));
    const auto* block = dynamic_cast<const forms::TextBox*>(form.findControl("TxtName"));
    const auto* leader = dynamic_cast<const forms::CheckBox*>(form.findControl("Check1"));
    InsertionPlan plan;
    if (parameters == nullptr || table == nullptr || block == nullptr || leader == nullptr) return plan;
    const bool moves = leader->value() == 1;
    plan.block = QString::fromStdString(block->text());
    plan.rows = table->listItems().count();
    plan.key = plan.block + '\n' + QString::number(plan.rows) + (moves ? "\n+" : "\n");
    std::array<Source, kNumbers.size()> sources;
    for (std::size_t i = 0; i < kNumbers.size(); ++i) {
        sources[i] = sourceOf(*parameters, *table, kNumbers[i]);
        plan.key += '\n' + QString::fromStdString(sources[i].constant);
    }
    for (int row = 1; row <= plan.rows; ++row) {
        const forms::ListItem& cells = table->listItems().item(row);
        std::array<double, kNumbers.size()> values{};
        QString reason;
        std::size_t failing = kNumbers.size();
        for (std::size_t i = 0; i < kNumbers.size(); ++i) {
            if (!moves && i >= 3 && i <= 5) continue;  // deltas count for a leader line alone
            const Source& source = sources[i];
            const std::string& text = source.column == 0   ? source.constant
                                      : source.column == 1 ? cells.text()
                                                           : cells.subItem(source.column - 1);
            try {
                values[i] = basic::toDouble(text, regional);
            } catch (const basic::Error&) {
                reason = QCoreApplication::translate("window", kNoNumber)
                             .arg(QString::fromUtf8(kNumbers[i]), qt_face::toShown(text));
                failing = i;
                break;
            }
        }
        const geometry::Point3 at{values[0] + values[3], values[1] + values[4], values[2] + values[5]};
        if (failing < kNumbers.size()) {
            InsertionPlan::Fault fault{reason, {}};
            if (failing >= 3) fault.at.push_back(at);
            plan.faults.emplace(row, std::move(fault));
            continue;
        }
        drawing::Placement place;
        place.insertion = at;
        place.scale = {values[6], values[7], values[8]};
        place.rotation = values[9];
        plan.places.push_back(place);
    }
    return plan;
}

std::vector<int> reportedRows(const std::string& report) {
    std::vector<int> rows;
    std::istringstream lines(report);
    std::string line;
    std::getline(lines, line);
    while (std::getline(lines, line)) {
        const std::size_t digit = line.find_first_of("0123456789");
        if (digit != std::string::npos) rows.push_back(std::atoi(line.c_str() + digit));
    }
    return rows;
}

}  // namespace window
