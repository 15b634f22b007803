#include "desk/jobs/worker.h"

#include "basic/error.h"
#include "desk/dxf/transient.h"
#include "desk/jobs/job.h"
#include "desk/jobs/replace_options.h"

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>

namespace jobs {

namespace fs = std::filesystem;

namespace {

using JobFunction = void (*)(Job&);

JobFunction functionOf(Verb verb) {
    static const std::map<Verb, JobFunction> functions = {
        {kReplace, replaceBlocks},   {kExtract, extractBlocks}, {kInsert, insertRows},
        {kUpdate, updateAttributes}, {kList, listBlocks},       {kCheck, checkDrawing},
        {kPicture, drawPicture}};
    return functions.at(verb);
}

/// A file that takes the place of another when it is complete, and goes otherwise.
class PartFile {
  public:
    explicit PartFile(std::string target) : target_(std::move(target)) {
        if (target_.empty()) return;
        const fs::path path(target_);
        path_ = (path.parent_path() / ("." + path.stem().string() + ".part" + path.extension().string()))
                    .string();
        discard();
        transient_.hold(path_);
    }
    ~PartFile() { discard(); }
    PartFile(const PartFile&) = delete;
    PartFile& operator=(const PartFile&) = delete;

    const std::string& path() const { return path_; }
    /// Raises basic::Error where fewer lines were written than there should be: the dialog's own writing
    /// fails without a word.
    void finish(std::size_t lines) {
        std::ifstream file(path_, std::ios::binary);
        const std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
        std::size_t written = 0;
        for (std::size_t at = bytes.find("\r\n"); at != std::string::npos; at = bytes.find("\r\n", at + 2))
            ++written;
        if (written < lines) throw basic::Error(basic::kDeviceError, target_ + ": can't be written");
        std::error_code error;
        fs::rename(path_, target_, error);
        if (error) throw basic::Error(basic::kPermissionDenied, target_ + ": " + error.message());
    }

  private:
    void discard() const {
        std::error_code ignored;
        if (!path_.empty()) fs::remove(path_, ignored);
    }
    std::string target_;
    std::string path_;
    dxf::Transient transient_;
};

std::size_t rowCount(const Result& result) {
    for (const auto& [name, number] : result.counts) {
        if (name == "rows") return static_cast<std::size_t>(number);
    }
    return 0;
}

void saveDrawing(const Arguments& arguments, shell::Desk& desk, const Target& target, Result& result) {
    if (!desk.hasUnsavedChanges()) {
        if (result.reason.empty()) result.reason = "nothing was changed";
        result.state = Result::State::Unchanged;
        return;
    }
    if (arguments.has("--dry-run")) return;
    if (arguments.has("--in-place")) keepCopy(target.drawing);
    desk.save(target.output);
    result.output = target.output;
}

void runOn(const Arguments& arguments, const shell::DeskOptions& options, const Target& target,
           Result& result) {
    DialogRun dialogs;
    PlannedPrompter prompter;
    std::ostringstream told;
    shell::Desk desk(options, dialogs, prompter, told);
    desk.open(target.drawing);
    PartFile table(arguments.verb == kExtract ? target.output : "");
    const std::string output = arguments.verb == kPicture ? target.output : table.path();
    Job job{arguments, options.regional, desk, dialogs, prompter, result, output};
    functionOf(arguments.verb)(job);
    if (result.state != Result::State::Done) return;
    if (changesDrawings(arguments.verb)) saveDrawing(arguments, desk, target, result);
    if (!table.path().empty()) {
        // A .csv has no title line.
        table.finish(rowCount(result) + (isCsv(target.output) ? 1 : 2));
        result.output = target.output;
    }
    result.notes.insert(result.notes.end(), prompter.messages.begin(), prompter.messages.end());
}

}  // namespace

void Job::runCommand(const char* name) const {
    const shell::Desk::Outcome outcome = desk.run(name);
    dialogs.requireDone();
    if (outcome != shell::Desk::Outcome::Done) throw JobError(std::string(name) + " failed");
}

void checkOptions(const Arguments& arguments) {
    const auto require = [&](const char* option) {
        if (arguments.value(option).empty())
            throw UsageError(std::string(textOf(arguments.verb).name) + " needs " + option);
    };
    if (arguments.verb == kReplace) readReplaceOptions(arguments);
    if (arguments.verb == kPicture) checkPictureOptions(arguments);
    if (arguments.verb == kExtract || arguments.verb == kInsert) require("--block");
    if (arguments.verb == kInsert) {
        for (const std::string& text : arguments.values("--map")) readPair("--map", text);
    }
    if (arguments.verb == kInsert || arguments.verb == kUpdate) {
        require("--data");
        bytesOf("--data", arguments.value("--data"));
    }
}

Result runJob(const Arguments& arguments, const shell::DeskOptions& options, const Target& target) {
    const auto start = std::chrono::steady_clock::now();
    Result result;
    result.drawing = target.drawing;
    const auto fail = [&](const std::string& reason) {
        result.state = Result::State::Failed;
        result.reason = reason;
        result.table = {};
    };
    try {
        runOn(arguments, options, target, result);
    } catch (const basic::Error& error) {
        fail(error.description());
    } catch (const std::exception& error) {
        fail(error.what());
    }
    result.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    return result;
}

}  // namespace jobs
