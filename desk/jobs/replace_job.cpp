#include "basic/text.h"
#include "desk/jobs/job.h"
#include "desk/jobs/references.h"
#include "desk/jobs/replace_options.h"
#include "forms/acts.h"
#include "forms/controls.h"
#include "forms/find_entry.h"

#include <algorithm>
#include <cstdlib>
#include <memory>

namespace jobs {

namespace {

namespace acts = forms::acts;

constexpr const char* kReplaceDialog = "fmReplace";
constexpr const char* kTable = "fmAttSet";

/// The entry of the replacement list that browses for a file.
constexpr int kBrowseEntry = 1;

std::string joined(const std::vector<std::string>& texts) {
    std::string line;
    for (const std::string& text : texts) line.append(line.empty() ? "" : ", ").append(text);
    return line;
}

/// Fills the table of attributes row by row, and keeps what has no partner for the report.
class PairTable {
  public:
    PairTable(const ReplaceOptions& options, Result& result) : options_(options), result_(result) {}

    void fill(forms::Form& form) {
        auto& rows = static_cast<forms::ListView&>(acts::controlNamed(form, "ListView1"));
        forms::Control& choice = acts::controlNamed(form, "Combo2");
        std::vector<bool> fed(static_cast<std::size_t>(rows.listItems().count()) + 1, false);
        for (const AttributePair& pair : options_.pairs) {
            const int row = forms::findEntry(rows, pair.from);
            const int entry = forms::findEntry(choice, pair.to);
            if (row > 0 && entry >= 0) {
                choose(rows, choice, row, entry);
                fed[static_cast<std::size_t>(row)] = true;
            } else if (pair.required) {
                throw JobError("no attribute " + (row > 0 ? pair.to : pair.from) + " to pair in " +
                               pair.from + "=" + pair.to);
            } else {
                result_.notes.push_back("passed over " + pair.from + "=" + pair.to + ": no such attribute");
            }
        }
        if (options_.pairEqual) pairEqual(rows, choice, fed);
        tellUnfed(static_cast<forms::ComboBox&>(choice));
    }

  private:
    void choose(forms::ListView& rows, forms::Control& choice, int row, int entry) {
        acts::chooseIndex(rows, row);
        acts::chooseIndex(choice, entry);
        used_.push_back(static_cast<forms::ListControl&>(choice).list(entry));
    }

    void pairEqual(forms::ListView& rows, forms::Control& choice, const std::vector<bool>& fed) {
        std::vector<std::string> alone;
        for (int row = 1; row <= rows.listItems().count(); ++row) {
            if (fed[static_cast<std::size_t>(row)]) continue;
            const std::string tag = rows.listItems().item(row).text();
            const int entry = forms::findEntry(choice, tag);
            if (entry < 0) {
                alone.push_back(tag);
            } else {
                choose(rows, choice, row, entry);
            }
        }
        if (!alone.empty()) result_.notes.push_back("no partner in the new block for " + joined(alone));
    }

    void tellUnfed(const forms::ComboBox& choice) {
        std::vector<std::string> alone;
        for (int i = 0; i < choice.listCount(); ++i) {
            if (std::find(used_.begin(), used_.end(), choice.list(i)) == used_.end())
                alone.push_back(choice.list(i));
        }
        if (!alone.empty()) result_.notes.push_back("default value for " + joined(alone));
    }

    const ReplaceOptions& options_;
    Result& result_;
    std::vector<std::string> used_;
};

void planAttributes(Job& job, const std::shared_ptr<ReplaceOptions>& options) {
    if (options->pairs.empty() && !options->pairEqual) return;
    const bool required = std::any_of(options->pairs.begin(), options->pairs.end(),
                                      [](const AttributePair& pair) { return pair.required; });
    DialogRun& dialogs = job.dialogs;
    Result& result = job.result;
    dialogs.on(kReplaceDialog, [&dialogs, &result, options, required](forms::Form& form) {
        forms::Control& check = acts::controlNamed(form, "ChkAttSet");
        if (!check.enabled()) {
            if (required) throw JobError("the two blocks don't both have attributes");
            result.notes.emplace_back("no attributes to carry over");
            return;
        }
        // These come before the acts that are planned already.
        dialogs.next(kTable, [](forms::Form& table) { acts::click(acts::controlNamed(table, "OKButton")); });
        dialogs.next(kTable,
                     [&result, options](forms::Form& table) { PairTable(*options, result).fill(table); });
        dialogs.next(kReplaceDialog,
                     [](forms::Form& up) { acts::click(acts::controlNamed(up, "BtnAttSet")); });
        acts::click(check);
    });
}

void planParameters(Job& job, const ReplaceOptions& options) {
    const auto override = [&](const char* check, const char* field, const std::optional<double>& value) {
        if (!value) return;
        job.dialogs.click(kReplaceDialog, check);
        job.dialogs.type(kReplaceDialog, field, basic::toText(*value, job.regional));
    };
    override("chkRotation", "txtRotation", options.rotation);
    if (options.visible) {
        job.dialogs.click(kReplaceDialog, "chkVisibility");
        job.dialogs.chooseIndex(kReplaceDialog, "cboVisibility", *options.visible ? 0 : 1);
    }
    if (options.scale) {
        override("chkXScale", "txtXScale", options.scale->x);
        override("chkYScale", "txtYScale", options.scale->y);
        override("chkZScale", "txtZScale", options.scale->z);
    }
}

void planReplacement(Job& job, const std::string& name) {
    if (isDrawingFile(name)) {
        job.dialogs.chooseIndex(kReplaceDialog, "CboBlocReplacer", kBrowseEntry);
        job.dialogs.answerFile(name);
        return;
    }
    const std::string block = blockNamed(job.drawing(), name);
    if (block.empty())
        throw JobError("no block " + name + " in the drawing; --to FILE.dxf brings one in from a file");
    job.dialogs.choose(kReplaceDialog, "CboBlocReplacer", block);
}

}  // namespace

void replaceBlocks(Job& job) {
    const auto options = std::make_shared<ReplaceOptions>(readReplaceOptions(job.arguments));
    const std::string from = blockNamed(job.drawing(), options->from);
    const References references = findReferences(job.drawing(), options->from);
    std::vector<drawing::EntityId> wanted = references.free;
    if (!options->zones.empty()) wanted = inZones(job.drawing(), wanted, options->zones);
    if (wanted.empty()) {
        job.result.state = Result::State::Unchanged;
        job.result.reason = from.empty() ? "no block " + options->from
                                         : "no reference of " + from + " that can be replaced" +
                                               (options->zones.empty() ? "" : " in the zone");
    } else {
        if (!options->keep.empty()) job.desk.document().invoke("SetVariable", {"VNKEEP", options->keep});
        DialogRun& dialogs = job.dialogs;
        dialogs.choose(kReplaceDialog, "lstDestination", from);
        planReplacement(job, options->to);
        if (wanted.size() != references.inSpaces()) {
            job.prompter.selection = wanted;
            dialogs.click(kReplaceDialog, "optZoneSelection");
        }
        planAttributes(job, options);
        planParameters(job, *options);
        dialogs.on(kReplaceDialog, [&job](forms::Form& form) {
            const std::string& number = acts::controlNamed(form, "LblNbrSelected").caption();
            job.result.count("replaced", std::strtoul(number.c_str(), nullptr, 10));
        });
        dialogs.click(kReplaceDialog, "BtnReplace");
        dialogs.click(kReplaceDialog, "BtnClose");
        job.runCommand("VNREPLACE");
    }
    if (!references.locked.empty()) job.result.count("onLockedLayers", references.locked.size());
    if (references.insideBlocks > 0) job.result.count("insideBlocks", references.insideBlocks);
    const std::size_t outside = references.free.size() - wanted.size();
    if (outside > 0) job.result.count("outsideZone", outside);
}

}  // namespace jobs
