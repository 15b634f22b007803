#include "desk/jobs/run.h"

#include "basic/error.h"
#include "desk/dxf/transient.h"
#include "desk/jobs/job.h"
#include "desk/jobs/pool.h"
#include "desk/jobs/report.h"
#include "desk/jobs/table_output.h"
#include "desk/jobs/targets.h"
#include "desk/jobs/worker.h"
#include "desk/shell/install_folder.h"
#include "desk/shell/surroundings.h"
#include "desk/shell/temporary_folder.h"

#include <algorithm>
#include <atomic>
#include <charconv>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <ostream>
#include <thread>
#include <unistd.h>

namespace jobs {

namespace fs = std::filesystem;

namespace {

/// Set by Ctrl-C: what a signal handler can reach has to be global.
std::atomic<bool> interrupted = false;

extern "C" void onInterrupt(int) {
    // A second time the user means it; each result that is being written is renamed only when it is whole.
    if (!interrupted.exchange(true)) return;
    dxf::removeTransients();
    _exit(kInterrupted);
}

/// Settings of the verbs' own, a folder a worker: the add-in writes its settings with each command. The
/// user's language counts, window sizes and remembered formats have no part in a job.
class Settings {
  public:
    explicit Settings(const Arguments& arguments) {
        options_.resources = shell::resourceFolder();
        const std::string regional = arguments.value("--regional");
        options_.regional = regional.empty() ? shell::desktopRegional(shell::readEnvironment)
                                             : shell::regionalByName(regional).value();
        options_.frenchDesktop = shell::isFrenchDesktop(shell::readEnvironment);
        options_.language = language(arguments);
    }
    shell::DeskOptions of(std::size_t worker) const {
        shell::DeskOptions options = options_;
        options.installFolder = folder_.path() / std::to_string(worker);
        return options;
    }
    const basic::Regional& regional() const { return options_.regional; }

  private:
    static std::string language(const Arguments& arguments) {
        const std::string code = arguments.value("--lang");
        if (!code.empty()) return shell::languageByCode(code);
        try {
            return shell::storedLanguage(shell::installFolder(shell::readEnvironment));
        } catch (const basic::Error&) {
            return {};  // no settings yet
        }
    }

    shell::TemporaryFolder folder_{"vorlane"};
    shell::DeskOptions options_;
};

std::size_t workerCount(const Arguments& arguments, std::size_t drawings) {
    std::size_t count = std::max(1U, std::thread::hardware_concurrency());
    if (arguments.has("--jobs")) {
        const std::string text = arguments.value("--jobs");
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), count);
        if (error != std::errc() || end != text.data() + text.size() || count == 0)
            throw UsageError("--jobs takes a number from 1, not " + text);
    }
    return std::min(count, drawings);
}

/// The one table that several extractions go into, each row with its drawing's name in front.
class CommonTable {
  public:
    CommonTable(const Arguments& arguments, const basic::Regional& regional, std::string path)
        : arguments_(arguments), regional_(regional), path_(std::move(path)) {}

    void add(const Result& result) {
        if (path_.empty() || result.table.headers.empty()) return;
        Table one = result.table;
        one.headers.insert(one.headers.begin(), kDrawingHeader);
        for (auto& row : one.rows)
            row.insert(row.begin(), forSpreadsheet(fs::path(result.drawing).filename().string(), regional_));
        appendTable(table_, one, kLayerHeader);
    }
    void write(std::ostream& output) const {
        if (path_.empty() || table_.headers.empty()) return;
        const fs::path target(path_);
        const fs::path part =
            target.parent_path() / ("." + target.stem().string() + ".part" + target.extension().string());
        dxf::Transient transient;
        transient.hold(part.string());
        writeTable(part.string(), table_, arguments_, regional_);
        fs::rename(part, target);
        if (!arguments_.has("--quiet") && !arguments_.has("--json"))
            output << table_.rows.size() << " rows -> " << path_ << "\n";
    }

  private:
    const Arguments& arguments_;
    const basic::Regional& regional_;
    std::string path_;
    Table table_;
};

}  // namespace

int runVerb(const Arguments& arguments, std::ostream& output, std::ostream& errors) {
    checkOptions(arguments);
    const std::size_t workers = workerCount(arguments, arguments.operands.size());
    const Targets targets = findTargets(arguments);
    const Settings settings(arguments);
    Report report(arguments, targets.all.size(), output, errors);
    report.showProgress(isatty(STDERR_FILENO) != 0 && targets.all.size() > 1 && !arguments.has("--quiet"));
    CommonTable common(arguments, settings.regional(), targets.tableOfAll);

    std::signal(SIGINT, onInterrupt);
    const auto start = std::chrono::steady_clock::now();
    output.flush();
    const std::size_t done = runPool(
        targets.all.size(), workers,
        [&](std::size_t piece, std::size_t worker) {
            return runJob(arguments, settings.of(worker), targets.all[piece]);
        },
        [&](std::size_t piece, Result result) {
            result.drawing = targets.all[piece].drawing;
            common.add(result);
            report.add(result);
        },
        interrupted);
    common.write(output);
    report.finish(done, std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    if (done < targets.all.size()) return kInterrupted;
    return report.anyFailed() ? kFailed : kDone;
}

}  // namespace jobs
