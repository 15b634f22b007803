#include "desk/dxf/file.h"
#include "desk/dxf/file_error.h"

#include <cerrno>
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

    int create() {
        constexpr int kMostTries = 1000;
        const std::string stem = folderOf(target_) + "/.vorlane-" + std::to_string(getpid()) + "-";
        int descriptor = -1;
        for (int i = 0; i < kMostTries && descriptor < 0; ++i) {
            name_ = stem + std::to_string(i) + ".tmp";
            descriptor = open(name_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
            if (descriptor < 0 && errno != EEXIST) break;
        }
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
    bool created_ = false;
};

/// Owner where we may, then the permission bits, which a change of owner can clear.
void copyRights(int descriptor, const struct stat& old, const std::string& path) {
    if (fchown(descriptor, old.st_uid, old.st_gid) != 0 &&
        fchown(descriptor, static_cast<uid_t>(-1), old.st_gid) != 0) {
        // Somebody else's file in a folder of ours: the new one is ours, as any editor leaves it.
    }
    if (fchmod(descriptor, old.st_mode & 07777) != 0) fail(path, fileError(errno));
}

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

}  // namespace

void saveAtomically(const std::string& path, std::span<const std::string_view> pieces) {
    if (path.empty() || path.ends_with('/')) fail(path, fileError(path.empty() ? EINVAL : EISDIR));
    const std::string target = resolveLinks(path);
    const std::optional<struct stat> old = statusOfOld(path, target);
    TemporaryFile temporary(path, target);
    Descriptor file(temporary.create());
    if (old) copyRights(file.get(), *old, path);
    writePieces(file.get(), pieces, path);
    if (fsync(file.get()) != 0) fail(path, fileError(errno));
    if (const int error = file.close(); error != 0) fail(path, fileError(error));
    temporary.takePlace();
    // The file is complete from here on; that its name lasts, too, is as good as the folder's flushing.
    const Descriptor folder(open(folderOf(target).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder.isOpen()) fsync(folder.get());
}

}  // namespace dxf
