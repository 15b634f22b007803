#include "extract/parameter_list.h"

#include <utility>

namespace extract {
namespace {

constexpr const char* kFixed[] = {"X_",    "Y_",           "Z_",     "Ech.X",  "Ech.Y",
                                  "Ech.Z", "Rotation(rd)", "DeltaX", "DeltaY", "DeltaZ"};
constexpr int kLastFileParameter = 7;
constexpr int kFixedParameters = 10;
constexpr forms::Twips kNumberWidth = 400;
constexpr forms::Twips kColumnWidth = 700;

std::string placeholder(int i) { return "Colonne " + std::to_string(i); }

}  // namespace

void ParameterList::addFixedParameters() {
    for (const char* name : kFixed) parameters_.listItems().add(name);
}

void ParameterList::ResetParameterRows(const host::BlockReference& reference, bool ColumnsLoaded,
                                       forms::ComboBox& candidates, basic::ErrorState& errors) {
    parameters_.listItems().clear();
    addFixedParameters();
    errors.skip([&] {
        const host::Attributes attributes = reference.GetAttributes();
        for (std::size_t i = 0; i < attributes.size(); ++i)
            errors.skip([&] { parameters_.listItems().add(attributes.at(i).TagString()); });
    });
    if (ColumnsLoaded) return;

    table_.columnHeaders().clear();
    table_.columnHeaders().add("N°", kNumberWidth);
    for (int i = 1; i <= parameters_.listItems().count(); ++i) {
        errors.skip([&] { parameters_.listItems().item(i).setSubItem(1, placeholder(i)); });
        candidates.addItem(placeholder(i));
        table_.columnHeaders().add(placeholder(i), kColumnWidth);
    }
}

void ParameterList::ApplyDefaultMapping(basic::ErrorState& errors) {
    const int last = parameters_.listItems().count();
    for (int row = 1; row <= last; ++row) {
        errors.skip([&] {
            if (row <= kLastFileParameter) {
                useAsMapping(row, row + 1);
            } else if (row <= kFixedParameters) {
                parameters_.listItems().item(row).setSubItem(1, "0");
            } else {
                useAsMapping(row, row - 2);
            }
        });
    }
}

void ParameterList::useAsMapping(int row, int column) {
    parameters_.listItems().item(row).setSubItem(1, table_.columnHeaders().item(column).text);
}

const std::string& ParameterList::mapping(int row) const {
    return std::as_const(parameters_).listItems().item(row).subItem(1);
}

const std::string& ParameterList::GetParameterValue(const std::string& name, int row) const {
    const forms::ListItems& parameters = parameters_.listItems();
    int parameter = 1;  // one past the end where the name isn't found: the reading fails there
    while (parameter <= parameters.count() && parameters.item(parameter).text() != name) ++parameter;
    const std::string& wanted = mapping(parameter);

    const forms::ColumnHeaders& headers = table_.columnHeaders();
    for (int column = 1; column <= headers.count(); ++column) {
        if (headers.item(column).text != wanted) continue;
        const forms::ListItem& cells = table_.listItems().item(row);
        return column == 1 ? cells.text() : cells.subItem(column - 1);
    }
    return wanted;
}

}  // namespace extract
