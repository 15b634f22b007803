#include "desk/dxf/file.h"
#include "desk/dxf/file_error.h"
#include "desk/dxf/rights.h"
#include "desk/dxf/transient.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <limits.h>
#include <optional>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>
#include <vector>

namespace dxf {

namespace {

[[noreturn]] void fail(const std::string& path, const FileError& error) {
    throw basic::Error(error.number, path + ": " + error.text);
}

/// Where the bytes of `path` lie in the end: symbolic links followed, also one whose target isn't there yet.
std::string resolveLinks(std::string path) {
    constexpr int kMostLinks = 40;
    for (int links = 0; links < kMostLinks; ++links) {
        char buffer[PATH_MAX];
        const ssize_t length = readlink(path.c_str(), buffer, sizeof buffer);
        if (length < 0) return path;
        const std::string target(buffer, static_cast<std::size_t>(length));
        path = target.starts_with('/') ? target : folderOf(path).append("/").append(target);
    }
    fail(path, fileError(ELOOP));
}

/// The state of the file to replace, if it is there. Refuses what isn't a file and what we may not write.
std::optional<struct stat> statusOfOld(const std::string& path, const std::string& target) {
    struct stat status;
    if (stat(target.c_str(), &status) != 0) {
        if (errno == ENOENT) return std::nullopt;
        fail(path, fileError(errno));
    }
    if (S_ISDIR(status.st_mode)) fail(path, fileError(EISDIR));
    if (!S_ISREG(status.st_mode)) fail(path, {basic::kPathFileAccess, "this is a device, not a file"});
    // Renaming over a write-protected file would work, and isn't what its protection asks for.
    if (faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0) fail(path, fileError(errno));
    return status;
}

/// A new file beside the target, gone at the end of the scope unless it took the target's place.
class TemporaryFile {
  public:
    TemporaryFile(const std::string& path, const std::string& target) : path_(path), target_(target) {}
    ~TemporaryFile() {
        if (created_) unlink(name_.c_str());
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    /// A descriptor of the new file, which nobody else may use yet. Where the folder takes no new file,
    /// nothing if `mayFail`; else it is an error.
    std::optional<int> create(bool mayFail) {
        constexpr int kMostTries = 1000;
        const std::string stem = folderOf(target_) + "/.vorlane-" + std::to_string(getpid()) + "-";
        int descriptor = -1;
        for (int i = 0; i < kMostTries && descriptor < 0; ++i) {
            name_ = stem + std::to_string(i) + ".tmp";
            transient_.hold(name_);
            descriptor = open(name_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
            if (descriptor < 0 && errno != EEXIST) break;
        }
        if (descriptor < 0) transient_.release();
        const bool refused = errno == EACCES || errno == EPERM || errno == EROFS;
        if (descriptor < 0 && mayFail && refused) return std::nullopt;
        if (descriptor < 0) fail(path_, fileError(errno));
        created_ = true;
        return descriptor;
    }

    void takePlace() {
        if (rename(name_.c_str(), target_.c_str()) != 0) fail(path_, fileError(errno));
        created_ = false;
    }

  private:
    const std::string& path_;
    const std::string& target_;
    std::string name_;
    Transient transient_;
    bool created_ = false;
};

/// Writes all vectors, whatever part of them one call takes.
void writeVectors(int descriptor, std::vector<iovec>& vectors, const std::string& path) {
    iovec* at = vectors.data();
    iovec* const end = at + vectors.size();
    while (at != end) {
        const ssize_t written = writev(descriptor, at, static_cast<int>(end - at));
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) fail(path, fileError(errno));
        if (written == 0) fail(path, fileError(ENOSPC));
        std::size_t left = static_cast<std::size_t>(written);
        while (at != end && left >= at->iov_len) left -= (at++)->iov_len;
        if (at != end) {
            at->iov_base = static_cast<char*>(at->iov_base) + left;
            at->iov_len -= left;
        }
    }
    vectors.clear();
}

void writePieces(int descriptor, std::span<const std::string_view> pieces, const std::string& path) {
    constexpr std::size_t kBatch = 1024;  // what one call takes on every system
    static_assert(kBatch <= IOV_MAX);
    std::vector<iovec> vectors;
    vectors.reserve(kBatch);
    for (const std::string_view piece : pieces) {
        if (piece.empty()) continue;
        if (!vectors.empty()) {
            iovec& last = vectors.back();
            if (static_cast<const char*>(last.iov_base) + last.iov_len == piece.data()) {
                last.iov_len += piece.size();  // neighbours in memory go as one
                continue;
            }
        }
        if (vectors.size() == kBatch) writeVectors(descriptor, vectors, path);
        vectors.push_back({const_cast<char*>(piece.data()), piece.size()});
    }
    if (!vectors.empty()) writeVectors(descriptor, vectors, path);
}

/// Copies the file to a new one in the folder of backups, flushed; its path.
std::string backUp(int file, const std::string& path, const std::string& folder) {
    std::string name =
        folder + "/" + path.substr(path.rfind('/') + 1) + "." + std::to_string(getpid()) + ".bak";
    Descriptor copy(open(name.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, 0600));
    if (!copy.isOpen()) fail(name, fileError(errno));
    std::vector<char> buffer(std::size_t{1} << 20);
    for (off_t at = 0;;) {
        const ssize_t count = pread(file, buffer.data(), buffer.size(), at);
        if (count < 0) fail(path, fileError(errno));
        if (count == 0) break;
        at += count;
        std::vector<iovec> vectors{{buffer.data(), static_cast<std::size_t>(count)}};
        writeVectors(copy.get(), vectors, name);
    }
    if (fsync(copy.get()) != 0) fail(name, fileError(errno));
    if (const int error = copy.close(); error != 0) fail(name, fileError(error));
    return name;
}

/// Lets no signal end the program as long as it lives.
class HeldSignals {
  public:
    HeldSignals() {
        sigset_t all;
        sigfillset(&all);
        pthread_sigmask(SIG_BLOCK, &all, &before_);
    }
    ~HeldSignals() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }
    HeldSignals(const HeldSignals&) = delete;
    HeldSignals& operator=(const HeldSignals&) = delete;

  private:
    sigset_t before_{};
};

/// Writes over the file itself, once a copy of it lies in the folder of backups. The copy stays if anything
/// fails on the way, and the error names it.
void saveInPlace(const std::string& path, const std::string& target, std::span<const std::string_view> pieces,
                 const std::string& backupFolder) {
    Descriptor file(open(target.c_str(), O_RDWR | O_CLOEXEC));
    if (!file.isOpen()) fail(path, fileError(errno));
    const std::string backup = backUp(file.get(), target, backupFolder);
    off_t size = 0;
    for (const std::string_view piece : pieces) size += static_cast<off_t>(piece.size());
    // The room is there before the first byte is written, so that a full disk leaves the file as it was.
    struct stat old;
    if (fstat(file.get(), &old) != 0) fail(path, fileError(errno));
    if (const int error = size > old.st_size ? posix_fallocate(file.get(), 0, size) : 0; error != 0) {
        if (ftruncate(file.get(), old.st_size) == 0) unlink(backup.c_str());
        fail(path, fileError(error));
    }
    const HeldSignals held;
    try {
        writePieces(file.get(), pieces, path);
        if (ftruncate(file.get(), size) != 0 || fsync(file.get()) != 0) fail(path, fileError(errno));
        if (const int error = file.close(); error != 0) fail(path, fileError(error));
    } catch (const basic::Error& error) {
        throw basic::Error(error.number(), error.description() + "; the file of before is in " + backup);
    }
    unlink(backup.c_str());
}

}  // namespace

Saved saveAtomically(const std::string& path, std::span<const std::string_view> pieces,
                     const std::string& backupFolder) {
    if (path.empty() || path.ends_with('/')) fail(path, fileError(path.empty() ? EINVAL : EISDIR));
    const std::string target = resolveLinks(path);
    const std::optional<struct stat> old = statusOfOld(path, target);
    TemporaryFile temporary(path, target);
    const std::optional<int> created = temporary.create(old && !backupFolder.empty());
    if (!created) {
        saveInPlace(path, target, pieces, backupFolder);
        return {.inPlace = true};
    }
    Descriptor file(*created);
    writePieces(file.get(), pieces, path);
    if (old) {
        if (const int error = copyRights(target, *old, file.get()); error != 0) fail(path, fileError(error));
    } else if (fchmod(file.get(), bitsOfNewFile()) != 0) {
        fail(path, fileError(errno));
    }
    if (fsync(file.get()) != 0) fail(path, fileError(errno));
    if (const int error = file.close(); error != 0) fail(path, fileError(error));
    temporary.takePlace();
    // The file is complete from here on; that its name lasts, too, is as good as the folder's flushing.
    const Descriptor folder(open(folderOf(target).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder.isOpen()) fsync(folder.get());
    return {.otherNames = old && old->st_nlink > 1};
}

}  // namespace dxf
