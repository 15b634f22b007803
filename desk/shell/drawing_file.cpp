#include "desk/shell/drawing_file.h"

#include "desk/dxf/file_error.h"

#include <array>
#include <cerrno>
#include <charconv>
#include <ctime>
#include <fcntl.h>
#include <optional>
#include <pwd.h>
#include <signal.h>
#include <sstream>
#include <unistd.h>

namespace shell {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kProcess = "process ";

struct Lock {
    Holder holder;
    std::optional<pid_t> process;  ///< nothing in the lock file of another program
};

std::string machineName() {
    std::array<char, 256> name{};
    return gethostname(name.data(), name.size() - 1) == 0 ? name.data() : "";
}

std::string userName() {
    const passwd* entry = getpwuid(geteuid());
    return entry == nullptr ? std::to_string(geteuid()) : entry->pw_name;
}

std::string now() {
    const std::time_t time = std::time(nullptr);
    std::tm parts{};
    std::array<char, 64> text{};
    localtime_r(&time, &parts);
    std::strftime(text.data(), text.size(), "%a %b %d %H:%M:%S %Y", &parts);
    return text.data();
}

std::optional<Lock> readLock(const fs::path& path) {
    const dxf::Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW));
    if (!file.isOpen()) return std::nullopt;
    std::array<char, 1024> bytes{};
    const ssize_t count = read(file.get(), bytes.data(), bytes.size());
    if (count < 0) return std::nullopt;
    std::istringstream lines(std::string(bytes.data(), static_cast<std::size_t>(count)));
    Lock lock;
    const auto next = [&](std::string& line) {
        std::getline(lines, line);
        if (line.ends_with('\r')) line.pop_back();
    };
    next(lock.holder.user);
    next(lock.holder.machine);
    next(lock.holder.since);
    std::string last;
    next(last);
    pid_t process = 0;
    if (last.starts_with(kProcess) &&
        std::from_chars(last.data() + kProcess.size(), last.data() + last.size(), process).ec == std::errc())
        lock.process = process;
    return lock;
}

/// Whether the process that wrote the lock is gone; only a process of this machine can be asked.
bool isStale(const Lock& lock) {
    if (!lock.process || lock.holder.machine != machineName()) return false;
    return *lock.process <= 0 || (kill(*lock.process, 0) != 0 && errno == ESRCH);
}

}  // namespace

std::string Holder::text() const {
    std::string text = user;
    if (!machine.empty()) text += " on " + machine;
    if (!since.empty()) text += " since " + since;
    return text;
}

DrawingFile::DrawingFile(std::string path, const dxf::FileStamp& stamp)
    : path_(std::move(path)), lock_(fs::path(path_).replace_extension(".dwl")), stamp_(stamp) {
    if (takeLock()) return;
    const std::optional<Lock> found = readLock(lock_);
    if (!found) return;  // no right to make one here
    if (isStale(*found)) {
        std::error_code ignored;
        fs::remove(lock_, ignored);
        takeLock();
    } else {
        other_ = found->holder;
        if (other_.user.empty()) other_.user = "somebody";
    }
}

bool DrawingFile::takeLock() {
    const dxf::Descriptor file(open(lock_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644));
    if (!file.isOpen()) return false;
    const std::string text = userName() + "\n" + machineName() + "\n" + now() + "\n" + std::string(kProcess) +
                             std::to_string(getpid()) + "\n";
    isOurs_ = true;
    transient_.hold(lock_.string());
    // An incomplete lock still says that the drawing is open.
    return write(file.get(), text.data(), text.size()) >= 0;
}

bool DrawingFile::wasChanged() const {
    const dxf::FileStamp now = dxf::stampOf(path_);
    return now != stamp_ && now != dxf::FileStamp{};
}

DrawingFile::~DrawingFile() {
    if (isOurs_) unlink(lock_.c_str());
}

}  // namespace shell
