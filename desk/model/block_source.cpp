#include "desk/model/block_source.h"

#include "basic/error.h"
#include "basic/text.h"
#include "desk/dxf/findings.h"
#include "desk/import/import_block.h"
#include "desk/model/host_errors.h"

#include <chrono>
#include <filesystem>

namespace model {

namespace {

namespace fs = std::filesystem;

bool hasExtension(const fs::path& path, const char* extension) {
    return basic::equalIgnoringCase(path.extension().string(), extension);
}

/// The file of that name, with or without extension, beside the drawing or in a support folder; empty if
/// there is none.
fs::path findFile(const Context& context, const std::string& name) {
    std::vector<fs::path> folders;
    if (fs::path(name).has_parent_path()) {
        folders.emplace_back();
    } else {
        folders.push_back(fs::path(context.drawing->path()).parent_path());
        folders.insert(folders.end(), context.environment->supportFolders.begin(),
                       context.environment->supportFolders.end());
    }
    for (const fs::path& folder : folders) {
        for (const char* extension : {"", ".dxf", ".dwg"}) {
            fs::path candidate = folder / (name + extension);
            std::error_code ignored;
            if (fs::is_regular_file(candidate, ignored) &&
                (hasExtension(candidate, ".dxf") || hasExtension(candidate, ".dwg"))) {
                return candidate;
            }
        }
    }
    return {};
}

/// A converted file that goes when it has been read.
class Converted {
  public:
    Converted(const Context& context, const fs::path& file) {
        if (!context.environment->convertDwg)
            raise(kFileError, file.string() + ": no converter for DWG files");
        path_ = context.environment->convertDwg(file.string());
    }
    ~Converted() {
        std::error_code ignored;
        fs::remove(path_, ignored);
    }
    Converted(const Converted&) = delete;
    Converted& operator=(const Converted&) = delete;
    const std::string& path() const { return path_; }

  private:
    std::string path_;
};

std::unique_ptr<drawing::Drawing> openSource(const Context& context, const fs::path& file) {
    if (!hasExtension(file, ".dwg")) return drawing::Drawing::open(file.string());
    const Converted converted(context, file);
    return drawing::Drawing::open(converted.path());
}

void tell(const Context& context, const std::string& name, const importing::ImportResult& result) {
    Prompter& prompter = *context.environment->prompter;
    if (result.redefined) prompter.message("Block " + name + " redefined");
    for (const std::string& kept : result.kept) {
        prompter.message("Duplicate definition of block " + kept + " ignored.");
    }
    for (const std::string& left : result.leftBehind) prompter.message("Not brought in: " + left);
}

/// Dialogs may keep silent about a file that won't come in, and try again by the bare name, row after row of
/// a data file: the command line tells the reason once each time that the file is named with its folder.
void tellRefusal(Context& context, const std::string& name, const fs::path& file, const char* reason) {
    const std::string path = fs::absolute(file).string();
    if (path == context.refused && !fs::path(name).has_parent_path()) return;
    context.refused = path;
    context.environment->prompter->message(std::string("Not brought in: ") + reason);
}

drawing::BlockId bringIn(Context& context, const fs::path& file) {
    std::error_code ignored;
    const auto modified = fs::last_write_time(file, ignored).time_since_epoch().count();
    const std::uintmax_t size = fs::file_size(file, ignored);
    Context::BroughtIn& known = context.broughtIn[fs::absolute(file, ignored).string()];
    if (known.block != drawing::kNoBlock && known.modified == static_cast<std::int64_t>(modified) &&
        known.size == size && !context.drawing->blocks()[known.block].isErased) {
        return known.block;
    }
    const std::string name = file.stem().string();
    try {
        const std::unique_ptr<drawing::Drawing> source = openSource(context, file);
        const importing::ImportResult result = importing::importBlock(*context.drawing, *source, name);
        tell(context, name, result);
        known = {static_cast<std::int64_t>(modified), size, result.block};
    } catch (const dxf::ReadError& error) {
        raise(kFileError, error.what());
    }
    return known.block;
}

}  // namespace

drawing::BlockId findOrBringIn(Context& context, const std::string& name) {
    const drawing::BlockId block = context.drawing->blocks().find(name);
    if (block != drawing::kNoBlock) {
        if (context.drawing->blocks()[block].isLayout()) raise(kSelfReference, name);
        return block;
    }
    if (name.empty()) raise(kFileError, "no name of a block or a file");
    const fs::path file = findFile(context, name);
    if (file.empty()) raise(kFileError, name + ": no block of the drawing and no file that could be found");
    try {
        return bringIn(context, file);
    } catch (const basic::Error& error) {
        tellRefusal(context, name, file, error.what());
        throw;
    }
}

}  // namespace model
