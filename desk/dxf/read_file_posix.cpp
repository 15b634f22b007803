#include "desk/dxf/file.h"
#include "desk/dxf/file_error.h"
#include "desk/dxf/findings.h"

#include <cerrno>
#include <fcntl.h>
#include <new>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace dxf {

namespace {

[[noreturn]] void failToRead(const std::string& path, const FileError& error) {
    throw ReadError(error.number, path + ": " + error.text);
}

bool folderExists(const std::string& path) {
    struct stat status;
    return stat(folderOf(path).c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

/// Reads until the buffer is full or the file ends; a file cut short in the meantime is simply shorter.
std::size_t readAll(int descriptor, char* data, std::size_t size, const std::string& path) {
    std::size_t done = 0;
    while (done < size) {
        const ssize_t got = read(descriptor, data + done, size - done);
        if (got == 0) break;
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) failToRead(path, fileError(errno));
        done += static_cast<std::size_t>(got);
    }
    return done;
}

/// Asks for large pages, of which a file needs a five-hundredth: a page that is touched first costs more than
/// reading what goes into it. Where the system has none, nothing changes.
void adviseLargePages(char* data, std::size_t size) {
    constexpr std::uintptr_t kLargePage = std::uintptr_t{2} << 20;
    const auto address = reinterpret_cast<std::uintptr_t>(data);
    const std::uintptr_t begin = (address + kLargePage - 1) / kLargePage * kLargePage;
    const std::uintptr_t end = (address + size) / kLargePage * kLargePage;
    if (begin < end) madvise(data + (begin - address), end - begin, MADV_HUGEPAGE);
}

std::unique_ptr<char[]> allocate(std::size_t size, const std::string& path) {
    try {
        return std::make_unique_for_overwrite<char[]>(size);
    } catch (const std::bad_alloc&) {
        failToRead(path, {basic::kDeviceError, "the file is larger than this machine's memory"});
    }
}

}  // namespace

FileStamp stampOf(const std::string& path) {
    struct stat status;
    if (stat(path.c_str(), &status) != 0) return {};
    return {.device = status.st_dev,
            .node = status.st_ino,
            .size = static_cast<std::uint64_t>(status.st_size),
            .seconds = status.st_mtim.tv_sec,
            .nanoseconds = status.st_mtim.tv_nsec};
}

FileBytes readFile(const std::string& path) {
    if (path.empty()) failToRead(path, {basic::kBadFileName, "a file name is missing"});
    // Without waiting, should somebody name a pipe.
    const Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!file.isOpen()) {
        if (errno == ENOENT && folderExists(path))
            failToRead(path, {basic::kFileNotFound, "there is no such file"});
        failToRead(path, fileError(errno));
    }
    struct stat status;
    if (fstat(file.get(), &status) != 0) failToRead(path, fileError(errno));
    if (S_ISDIR(status.st_mode)) failToRead(path, fileError(EISDIR));
    if (!S_ISREG(status.st_mode)) failToRead(path, {basic::kPathFileAccess, "this is a device, not a file"});
    FileBytes bytes;
    const auto size = static_cast<std::size_t>(status.st_size);
    bytes.data = allocate(size, path);
    adviseLargePages(bytes.data.get(), size);
    bytes.size = readAll(file.get(), bytes.data.get(), size, path);
    return bytes;
}

}  // namespace dxf
