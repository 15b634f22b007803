#include "basic/error.h"
#include "desk/jobs/job.h"
#include "desk/jobs/references.h"
#include "desk/jobs/table_output.h"
#include "forms/acts.h"
#include "forms/controls.h"

#include <algorithm>
#include <map>

namespace jobs {

namespace {

namespace acts = forms::acts;
using drawing::EntityId;

constexpr const char* kExtractDialog = "fmExtract";

/// The dialog's table as it stands.
void readTable(forms::Form& form, Table& table) {
    const auto& view = static_cast<const forms::ListView&>(acts::controlNamed(form, "ListView2"));
    const int columns = view.columnHeaders().count();
    for (int i = 1; i <= columns; ++i) table.headers.push_back(view.columnHeaders().item(i).text);
    for (int row = 1; row <= view.listItems().count(); ++row) {
        const forms::ListItem& item = view.listItems().item(row);
        std::vector<std::string>& cells = table.rows.emplace_back();
        cells.push_back(item.text());
        for (int column = 1; column < columns; ++column) cells.push_back(item.subItem(column));
    }
}

/// The table for a way through a spreadsheet and back: the dialog's columns of position, scales and rotation,
/// then each attribute under its own tag (the dialog goes by position), layer, colour, and what update finds
/// the reference by.
void regroup(const Job& job, const std::vector<EntityId>& references, Table& table) {
    constexpr std::size_t kFixed = 8;
    const drawing::Drawing& drawing = job.drawing();
    std::vector<std::vector<std::string>> rows;
    std::vector<std::string> tags;
    std::map<std::pair<std::string, int>, std::size_t> columns;  // a tag and which of several, to its column
    std::vector<std::vector<std::string>> values;
    for (const EntityId id : references) {
        std::map<std::string, int> seen;
        std::vector<std::string>& cells = values.emplace_back(tags.size());
        for (const EntityId attribute : drawing.attributes(id)) {
            const std::string tag = drawing.attributeTag(attribute);
            const auto [column, isNew] = columns.emplace(std::pair(tag, seen[tag]++), tags.size());
            if (isNew) tags.push_back(tag);
            cells.resize(tags.size());
            cells[column->second] = forSpreadsheet(drawing.attributeText(attribute), job.regional);
        }
    }
    std::vector<std::string> headers(table.headers.begin(), table.headers.begin() + kFixed);
    headers.insert(headers.end(), tags.begin(), tags.end());
    headers.insert(headers.end(), {kLayerHeader, kColorHeader, kBlockHeader, kHandleHeader});
    for (std::size_t i = 0; i < references.size(); ++i) {
        const drawing::CommonData common = drawing.common(references[i]);
        std::vector<std::string> cells(table.rows[i].begin(), table.rows[i].begin() + kFixed);
        values[i].resize(tags.size());
        cells.insert(cells.end(), values[i].begin(), values[i].end());
        cells.push_back(forSpreadsheet(common.layer, job.regional));
        cells.push_back(basic::toText(static_cast<std::int32_t>(common.color), job.regional));
        cells.push_back(forSpreadsheet(drawing.name(references[i]), job.regional));
        cells.push_back(forSpreadsheet(handleText(drawing.handle(references[i])), job.regional));
        rows.push_back(std::move(cells));
    }
    table.headers = std::move(headers);
    table.rows = std::move(rows);
}

}  // namespace

void extractBlocks(Job& job) {
    const std::string block = blockNamed(job.drawing(), job.arguments.value("--block"));
    const References references = findReferences(job.drawing(), job.arguments.value("--block"));
    std::vector<EntityId> wanted = references.all();
    if (job.arguments.has("--zone")) wanted = inZones(job.drawing(), wanted, job.arguments.values("--zone"));
    if (references.insideBlocks > 0) job.result.count("insideBlocks", references.insideBlocks);
    if (wanted.empty()) {
        job.result.state = Result::State::Unchanged;
        job.result.reason =
            block.empty() ? "no block " + job.arguments.value("--block")
                          : "no reference of " + block + (job.arguments.has("--zone") ? " in the zone" : "");
        return;
    }
    const bool handles = job.arguments.has("--handles");
    const bool byDialog =
        !job.output.empty() && !handles && !isCsv(job.output) && job.arguments.value("--encoding") != "utf8";
    // The dialog takes an array of references for no reference.
    const auto single = std::find_if(wanted.begin(), wanted.end(),
                                     [&](EntityId id) { return !job.drawing().insert(id).isArray; });
    job.prompter.entity = single == wanted.end() ? wanted.front() : *single;
    job.prompter.selection = wanted;
    job.dialogs.click(kExtractDialog, "BtnNew");
    job.dialogs.click("fmVnMessage", "OKButton");
    Table table;
    job.dialogs.on(kExtractDialog, [&table](forms::Form& form) { readTable(form, table); });
    if (byDialog) {
        job.dialogs.answerFile(job.output);
        job.dialogs.click(kExtractDialog, "BtnSave");
    }
    job.dialogs.click(kExtractDialog, "BtnClose");
    job.runCommand("VNEXTRACT");

    job.result.count("rows", table.rows.size());
    if (byDialog) return;
    table.block = block;
    if (handles) regroup(job, wanted, table);
    if (job.output.empty()) {
        job.result.table = std::move(table);
    } else {
        writeTable(job.output, table, job.arguments, job.regional);
    }
}

}  // namespace jobs
