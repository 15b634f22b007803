#include "basic/text.h"
#include "desk/jobs/job.h"
#include "desk/jobs/references.h"
#include "desk/jobs/replace_options.h"
#include "forms/acts.h"
#include "forms/controls.h"
#include "forms/find_entry.h"

#include <algorithm>
#include <filesystem>
#include <sstream>

namespace jobs {

namespace {

namespace acts = forms::acts;

constexpr const char* kInsertDialog = "fmReInsert";
constexpr int kBrowseEntry = 1;

/// Gives a parameter its mapping: a column's header as the file spells it, or a constant.
void map(forms::Form& form, const std::string& parameter, const std::string& wanted, Result& result) {
    forms::Control& parameters = acts::controlNamed(form, "ListView1");
    const int row = forms::findEntry(parameters, parameter);
    if (row < 0) throw JobError("--map " + parameter + ": no parameter or attribute of that name");
    forms::Control& mapping = acts::controlNamed(form, "ComboBox1");
    const int column = forms::findEntry(mapping, wanted);
    acts::chooseIndex(parameters, row);
    if (column >= 0) {
        acts::chooseIndex(mapping, column);
    } else {
        acts::type(mapping, wanted);
        result.notes.push_back(parameter + ": the constant \"" + wanted + "\", for want of such a column");
    }
}

int rowCount(forms::Form& form) {
    return static_cast<forms::ListView&>(acts::controlNamed(form, "ListView2")).listItems().count();
}

/// The lines of the run's report behind the first, each of which tells a row that failed.
std::vector<std::string> failedRows(const std::string& report) {
    std::vector<std::string> lines;
    std::istringstream text(report);
    std::string line;
    std::getline(text, line);
    while (std::getline(text, line)) {
        if (line.ends_with('\r')) line.pop_back();
        if (!line.empty()) lines.push_back(line);
    }
    return lines;
}

}  // namespace

void insertRows(Job& job) {
    const std::string wanted = job.arguments.value("--block");
    const std::string data = std::filesystem::absolute(job.arguments.value("--data")).string();
    const bool fromFile = isDrawingFile(wanted);
    const std::string block =
        fromFile ? std::filesystem::path(wanted).stem().string() : blockNamed(job.drawing(), wanted);
    if (block.empty())
        throw JobError("no block " + wanted + " in the drawing; --block FILE.dxf brings one in from a file");
    const std::size_t before = findReferences(job.drawing(), block).inSpaces();

    DialogRun& dialogs = job.dialogs;
    dialogs.tolerateWarnings();
    if (fromFile) {
        dialogs.answerFile(std::filesystem::absolute(wanted).string());
        dialogs.chooseIndex(kInsertDialog, "Combo1", kBrowseEntry);
    } else {
        dialogs.choose(kInsertDialog, "Combo1", block);
    }
    dialogs.answerFile(data);
    dialogs.click(kInsertDialog, "BtnData");
    for (const std::string& text : job.arguments.values("--map")) {
        const auto [parameter, column] = readPair("--map", text);
        dialogs.on(kInsertDialog, [&job, parameter = parameter, column = column](forms::Form& form) {
            map(form, parameter, column, job.result);
        });
    }
    if (job.arguments.has("--leader")) dialogs.click(kInsertDialog, "Check1");
    int rows = 0;
    dialogs.on(kInsertDialog, [&rows](forms::Form& form) { rows = rowCount(form); });
    dialogs.click(kInsertDialog, "BtnInsert");
    dialogs.click(kInsertDialog, "BtnClose");
    job.runCommand("VNINSERT");

    const std::size_t inserted = findReferences(job.drawing(), block).inSpaces() - before;
    job.result.count("inserted", inserted);
    const std::size_t failed =
        static_cast<std::size_t>(rows) - std::min(static_cast<std::size_t>(rows), inserted);
    std::vector<std::string> told;
    if (!dialogs.boxes().empty()) told = failedRows(dialogs.boxes().back().text);
    const std::size_t bad = std::max(failed, told.size());
    if (bad == 0) return;
    job.result.count("failedRows", bad);
    job.result.notes.insert(job.result.notes.end(), told.begin(), told.end());
    if (!job.arguments.has("--keep-going"))
        throw JobError(std::to_string(bad) + " of " + std::to_string(rows) +
                       " rows failed; nothing was saved");
}

}  // namespace jobs
