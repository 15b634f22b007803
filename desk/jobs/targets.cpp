#include "desk/jobs/targets.h"

#include "basic/error.h"
#include "basic/text.h"
#include "desk/shell/picture_program.h"

#include <filesystem>
#include <map>

namespace jobs {

namespace fs = std::filesystem;

namespace {

bool isTable(const fs::path& path) {
    const std::string extension = path.extension().string();
    return basic::equalIgnoringCase(extension, ".txt") || basic::equalIgnoringCase(extension, ".csv");
}

void makeFolder(const fs::path& folder) {
    std::error_code error;
    fs::create_directories(folder, error);
    if (error || !fs::is_directory(folder))
        throw UsageError("--out: the folder " + folder.string() + " can't be made");
}

/// Where a result goes that stands in a folder of its own: the drawing's name with another extension.
std::string inFolder(const fs::path& folder, const std::string& drawing, const char* extension) {
    return (folder / fs::path(drawing).stem()).string() + extension;
}

bool isSameFile(const fs::path& left, const fs::path& right) {
    std::error_code ignored;
    return fs::equivalent(left, right, ignored) ||
           fs::absolute(left).lexically_normal() == fs::absolute(right).lexically_normal();
}

void requireFree(const Arguments& arguments, const std::string& output) {
    std::error_code ignored;
    if (!arguments.has("--force") && fs::exists(output, ignored))
        throw UsageError(output + " is there already; --force overwrites it");
}

void requireDistinct(const Arguments& arguments, const Targets& targets) {
    std::map<std::string, std::string> taken;
    for (const Target& target : targets.all) {
        const std::string place =
            fs::absolute(target.output.empty() ? target.drawing : target.output).lexically_normal().string();
        const auto [other, isNew] = taken.emplace(place, target.drawing);
        if (!isNew) {
            throw UsageError(
                other->second + " and " + target.drawing +
                (target.output.empty() ? " are one drawing" : " would both go to " + target.output));
        }
        if (target.output.empty() || arguments.has("--in-place")) continue;
        for (const Target& source : targets.all) {
            if (isSameFile(source.drawing, target.output))
                throw UsageError("--out would overwrite " + source.drawing +
                                 "; --in-place does that, with a copy");
        }
        if (!arguments.has("--dry-run")) requireFree(arguments, target.output);
    }
}

void findTables(const Arguments& arguments, const std::string& out, Targets& targets) {
    if (out.empty()) throw UsageError("extract needs --out, a file or a folder");
    const bool oneFile = isTable(out) && !fs::is_directory(out);
    if (oneFile && targets.all.size() > 1) {
        targets.tableOfAll = out;
        requireFree(arguments, out);
        return;
    }
    if (!oneFile) makeFolder(out);
    for (Target& target : targets.all) target.output = oneFile ? out : inFolder(out, target.drawing, ".txt");
}

void findPictures(const Arguments& arguments, const std::string& out, Targets& targets) {
    const bool oneFile = shell::isPictureFile(out) && !fs::is_directory(out);
    if (oneFile && targets.all.size() > 1)
        throw UsageError("--out: several pictures go into a folder, not into " + out);
    if (oneFile && arguments.has("--format"))
        throw UsageError("--format: the name of " + out + " tells the kind");
    if (!oneFile && !out.empty()) makeFolder(out);
    const std::string extension = "." + (arguments.has("--format") ? arguments.value("--format") : "png");
    for (Target& target : targets.all) {
        const fs::path folder = out.empty() ? fs::path(target.drawing).parent_path() : fs::path(out);
        target.output = oneFile ? out : inFolder(folder, target.drawing, extension.c_str());
    }
}

void findDrawings(const Arguments& arguments, const std::string& out, Targets& targets) {
    if (arguments.has("--in-place") == !out.empty() && !arguments.has("--dry-run"))
        throw UsageError("say where the results go: --out FILE|FOLDER or --in-place (or --dry-run)");
    if (out.empty()) {
        for (const Target& target : targets.all) {
            if (!arguments.has("--dry-run") &&
                basic::equalIgnoringCase(fs::path(target.drawing).extension().string(), ".dwg"))
                throw UsageError(target.drawing + ": results are DXF; --out says where they go");
        }
        for (Target& target : targets.all) target.output = arguments.has("--in-place") ? target.drawing : "";
        return;
    }
    const bool oneFile = targets.all.size() == 1 && !fs::is_directory(out) && !out.ends_with('/') &&
                         basic::equalIgnoringCase(fs::path(out).extension().string(), ".dxf");
    if (!oneFile && !arguments.has("--dry-run")) makeFolder(out);
    for (Target& target : targets.all) target.output = oneFile ? out : inFolder(out, target.drawing, ".dxf");
}

}  // namespace

bool changesDrawings(Verb verb) { return (verb & (kReplace | kInsert | kUpdate)) != 0; }

Targets findTargets(const Arguments& arguments) {
    Targets targets;
    if (arguments.operands.empty()) throw UsageError("no drawing given");
    for (const std::string& drawing : arguments.operands) targets.all.push_back({drawing, {}});
    const std::string out = arguments.value("--out");
    if (changesDrawings(arguments.verb)) {
        findDrawings(arguments, out, targets);
    } else if (arguments.verb == kExtract) {
        findTables(arguments, out, targets);
    } else if (arguments.verb == kPicture) {
        findPictures(arguments, out, targets);
    }
    requireDistinct(arguments, targets);
    return targets;
}

void keepCopy(const std::string& path) {
    for (int number = 1;; ++number) {
        const std::string copy = path + ".bak" + (number == 1 ? "" : std::to_string(number));
        std::error_code error;
        if (fs::exists(copy, error)) continue;
        fs::copy_file(path, copy, error);
        if (error)
            throw basic::Error(basic::kPermissionDenied, copy + ": can't be written: " + error.message());
        return;
    }
}

}  // namespace jobs
