#include "basic/text.h"
#include "desk/dxf/tag.h"
#include "desk/jobs/job.h"
#include "desk/jobs/table_output.h"

#include <filesystem>
#include <map>
#include <set>

namespace jobs {

namespace {

using drawing::EntityId;

/// Columns that an extraction with handles has beside those of attributes.
bool isFixedColumn(const std::string& header) {
    static const std::set<std::string, std::less<>> fixed = {
        "N°",       "X insertion", "Y insertion", "Z insertion",  "Ech. X",     "Ech. Y",     "Ech. Z",
        "Rotation", kLayerHeader,  kColorHeader,  kDrawingHeader, kBlockHeader, kHandleHeader};
    return fixed.contains(header);
}

/// Writes the rows of a table into the references that they came from.
class Update {
  public:
    Update(Job& job, const Table& table) : job_(job), table_(table), exact_(job.arguments.has("--exact")) {
        handle_ = table.column(kHandleHeader);
        block_ = table.column(kBlockHeader);
        drawing_ = table.column(kDrawingHeader);
        if (handle_ < 0)
            throw JobError("the table has no column " + std::string(kHandleHeader) +
                           "; extract --handles makes one");
    }

    void run() {
        const std::string name = std::filesystem::path(job_.result.drawing).filename().string();
        for (std::size_t i = 0; i < table_.rows.size(); ++i) {
            const std::vector<std::string>& row = table_.rows[i];
            if (drawing_ >= 0) {
                const std::string of = cell(row, drawing_);
                if (of != name && of != job_.result.drawing) continue;
            }
            ++rows_;
            updateRow(row, i + 1);
        }
        job_.result.count("rows", rows_);
        job_.result.count("updated", updated_);
        if (gone_ > 0) job_.result.count("rowsWithoutReference", gone_);
        if (otherBlock_ > 0) job_.result.count("rowsOfAnotherBlock", otherBlock_);
        if (locked_ > 0) job_.result.count("onLockedLayers", locked_);
        if (updated_ > 0) return;
        job_.result.state = Result::State::Unchanged;
        job_.result.reason = rows_ == 0 ? "the table has no row of it" : "no value differs";
    }

  private:
    static std::string cell(const std::vector<std::string>& row, int column) {
        const auto index = static_cast<std::size_t>(column);
        return column >= 0 && index < row.size() ? fromSpreadsheet(row[index]) : std::string();
    }

    void note(std::size_t number, const std::string& text) {
        job_.result.notes.push_back("row " + std::to_string(number) + ": " + text);
    }

    void updateRow(const std::vector<std::string>& row, std::size_t number) {
        drawing::Drawing& drawing = job_.drawing();
        const std::string handle = cell(row, handle_);
        const EntityId id = drawing.byHandle(dxf::parseHandle(handle));
        if (id == drawing::kNoEntity || drawing.type(id) != "INSERT") {
            ++gone_;
            note(number, "no reference has the handle " + handle + " any more");
            return;
        }
        const std::string block = block_ >= 0 ? cell(row, block_) : table_.block;
        if (!block.empty() && !basic::equalIgnoringCase(block, drawing.name(id))) {
            ++otherBlock_;
            note(number, handle + " is a reference of " + drawing.name(id) + " by now, not of " + block);
            return;
        }
        updateAttributes(id, row, number);
    }

    void updateAttributes(EntityId id, const std::vector<std::string>& row, std::size_t number) {
        drawing::Drawing& drawing = job_.drawing();
        std::map<std::pair<std::string, int>, EntityId> attributes;
        std::map<std::string, int> seen;
        for (const EntityId attribute : drawing.attributes(id)) {
            const std::string tag = drawing.attributeTag(attribute);
            attributes.emplace(std::pair(tag, seen[tag]++), attribute);
        }
        seen.clear();
        for (std::size_t column = 0; column < table_.headers.size() && column < row.size(); ++column) {
            const std::string& tag = table_.headers[column];
            if (isFixedColumn(tag)) continue;
            const auto found = attributes.find({tag, seen[tag]++});
            const std::string value = cell(row, static_cast<int>(column));
            if (found == attributes.end()) {
                if (!value.empty()) note(number, "the reference has no attribute " + tag);
                continue;
            }
            if (!differs(drawing.attributeText(found->second), value)) continue;
            if (drawing.isOnLockedLayer(id) || drawing.isOnLockedLayer(found->second)) {
                ++locked_;
                note(number, tag + " is on a locked layer");
                continue;
            }
            drawing.setAttributeText(found->second, value);
            ++updated_;
        }
    }

    /// A spreadsheet writes numbers in its own way: 007 comes back as 7, 85.580 as 85.58.
    bool differs(const std::string& now, const std::string& wanted) const {
        return now != wanted && (exact_ || !isSameNumber(now, wanted));
    }

    Job& job_;
    const Table& table_;
    bool exact_;
    int handle_, block_, drawing_;
    std::size_t rows_ = 0, updated_ = 0, gone_ = 0, otherBlock_ = 0, locked_ = 0;
};

}  // namespace

void updateAttributes(Job& job) {
    const Table table = readTable(job.arguments.value("--data"));
    Update(job, table).run();
}

}  // namespace jobs
