#include "desk/shell/autosave.h"

#include "basic/error.h"
#include "basic/path.h"
#include "desk/drawing/drawing.h"
#include "desk/dxf/file.h"
#include "desk/shell/surroundings.h"

#include <algorithm>
#include <charconv>
#include <exception>
#include <sstream>
#include <unistd.h>

namespace shell {

namespace fs = std::filesystem;

namespace {

/// The part of a copy's name that stands for the drawing: its own name and a checksum (FNV-1a) of its place.
std::string nameOf(const std::string& path) {
    std::error_code ignored;
    fs::path place = fs::weakly_canonical(path, ignored);
    if (ignored) place = fs::absolute(path, ignored);
    std::uint64_t hash = 14695981039346656037u;
    for (const char byte : place.string()) hash = (hash ^ static_cast<unsigned char>(byte)) * 1099511628211u;
    std::ostringstream name;
    name << place.stem().string().substr(0, 100) << "-" << std::hex << hash << "-";
    return name.str();
}

/// The process in the name of a copy of the drawing; 0 for another file.
pid_t processOf(const std::string& file, const std::string& name) {
    pid_t process = 0;
    if (!file.starts_with(name) || !file.ends_with(".dxf")) return 0;
    std::from_chars(file.data() + name.size(), file.data() + file.size(), process);
    return process;
}

/// Whether the process is one of this program's that goes on; a number is used again by others in time.
bool worksOn(pid_t process) {
    std::error_code error;
    const fs::path program = fs::read_symlink("/proc/" + std::to_string(process) + "/exe", error);
    return !error && program.filename() == programFile().filename();
}

}  // namespace

Autosave::Autosave(fs::path folder, const std::string& path)
    : folder_(std::move(folder)), file_(folder_ / (nameOf(path) + std::to_string(getpid()) + ".dxf")) {}

Autosave::~Autosave() {
    if (std::uncaught_exceptions() == 0) remove();
}

void Autosave::keep(const drawing::Drawing& drawing) {
    if (!drawing.isModified()) return remove();
    if (exists_ && revision_ == drawing.revision()) return;
    std::error_code error;
    fs::create_directories(folder_, error);
    // What is drawn here is nobody else's business.
    fs::permissions(folder_, fs::perms::owner_all, error);
    const std::string bytes = drawing.savedBytes();
    const std::string_view pieces[] = {bytes};
    dxf::saveAtomically(file_.string(), pieces);
    fs::permissions(file_, fs::perms::owner_read | fs::perms::owner_write, error);
    exists_ = true;
    revision_ = drawing.revision();
}

void Autosave::leave() { exists_ = false; }

void Autosave::remove() {
    if (!exists_) return;
    std::error_code ignored;
    fs::remove(file_, ignored);
    exists_ = false;
}

std::vector<fs::path> Autosave::leftBehind(const fs::path& folder, const std::string& path) {
    const std::string name = nameOf(path);
    std::vector<std::pair<fs::file_time_type, fs::path>> found;
    std::error_code error, unseen;
    for (const fs::directory_entry& entry : basic::folderEntries(folder, error)) {
        const pid_t process = processOf(entry.path().filename().string(), name);
        if (process <= 0 || worksOn(process)) continue;
        found.emplace_back(entry.last_write_time(unseen), entry.path());
    }
    std::sort(found.rbegin(), found.rend());
    std::vector<fs::path> copies;
    copies.reserve(found.size());
    for (auto& [time, copy] : found) copies.push_back(std::move(copy));
    return copies;
}

}  // namespace shell
