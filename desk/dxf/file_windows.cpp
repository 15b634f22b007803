// Reading and saving on Windows.

#include "basic/wide.h"
#include "desk/dxf/file.h"
#include "desk/dxf/findings.h"

#include <algorithm>
#include <new>
#include <utility>
#include <vector>
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

namespace dxf {

namespace {

struct FileError {
    std::int32_t number;
    std::string text;
};

FileError fileError(DWORD systemError) {
    switch (systemError) {
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL:
            return {basic::kDiskFull, "the disk is full"};
        case ERROR_FILE_TOO_LARGE:
            return {basic::kDiskFull, "the file would be larger than allowed here"};
        case ERROR_ACCESS_DENIED:
            return {basic::kPermissionDenied, "permission denied"};
        case ERROR_SHARING_VIOLATION:
        case ERROR_LOCK_VIOLATION:
        case ERROR_USER_MAPPED_FILE:
            return {basic::kPermissionDenied, "another program has the file open"};
        case ERROR_WRITE_PROTECT:
            return {basic::kPermissionDenied, "the disk is write-protected"};
        case ERROR_FILE_NOT_FOUND:
            return {basic::kFileNotFound, "there is no such file"};
        case ERROR_PATH_NOT_FOUND:
        case ERROR_INVALID_DRIVE:
        case ERROR_BAD_NETPATH:
        case ERROR_BAD_NET_NAME:
        case ERROR_NOT_READY:
            return {basic::kPathNotFound, "there is no such folder"};
        case ERROR_INVALID_NAME:
        case ERROR_BAD_PATHNAME:
        case ERROR_FILENAME_EXCED_RANGE:
            return {basic::kBadFileName, "this can't be a file name"};
        default:
            return {basic::kDeviceError, "the system's error " + std::to_string(systemError)};
    }
}

[[noreturn]] void failReading(const std::string& path, const FileError& error) {
    throw ReadError(error.number, path + ": " + error.text);
}
[[noreturn]] void fail(const std::string& path, const FileError& error) {
    throw basic::Error(error.number, path + ": " + error.text);
}

FileError folderInPlace() { return {basic::kPathFileAccess, "this is a folder, not a file"}; }

/// The path as the system's calls take it: absolute, and in the form that has no limit of 260 characters.
std::wstring systemPath(const std::string& path) {
    std::wstring given = basic::toWide(path);
    if (given.starts_with(L"\\\\?\\") || given.starts_with(L"\\\\.\\")) return given;
    std::wstring full(GetFullPathNameW(given.c_str(), 0, nullptr, nullptr), L'\0');
    full.resize(GetFullPathNameW(given.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
    if (full.starts_with(L"\\\\")) return L"\\\\?\\UNC" + full.substr(1);
    return L"\\\\?\\" + full;
}

/// A file's handle, closed at the end of its scope.
class OpenFile {
  public:
    explicit OpenFile(HANDLE handle) : handle_(handle) {}
    ~OpenFile() { close(); }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    bool isOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
    HANDLE get() const { return handle_; }
    bool close() {
        const HANDLE handle = std::exchange(handle_, INVALID_HANDLE_VALUE);
        return handle == INVALID_HANDLE_VALUE || CloseHandle(handle) != FALSE;
    }

  private:
    HANDLE handle_;
};

bool isFolder(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// Where the bytes lie in the end when the path is a link; the path itself for a file that isn't there.
std::wstring resolveLinks(const std::wstring& path) {
    const OpenFile file(CreateFileW(path.c_str(), 0, kShareAll, nullptr, OPEN_EXISTING, 0, nullptr));
    if (!file.isOpen()) return path;
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0)
        return path;
    std::wstring target(GetFinalPathNameByHandleW(file.get(), nullptr, 0, FILE_NAME_NORMALIZED), L'\0');
    const auto room = static_cast<DWORD>(target.size());
    target.resize(GetFinalPathNameByHandleW(file.get(), target.data(), room, FILE_NAME_NORMALIZED));
    return target.empty() ? path : target;
}

/// A new file beside the target, gone at the end of the scope unless it took the target's place.
class TemporaryFile {
  public:
    TemporaryFile(const std::string& path, const std::wstring& target) : path_(path), target_(target) {}
    ~TemporaryFile() {
        if (created_) DeleteFileW(name_.c_str());
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    HANDLE create() {
        constexpr int kMostTries = 1000;
        const std::wstring stem = target_.substr(0, target_.find_last_of(L'\\') + 1) + L".vorlane-" +
                                  std::to_wstring(GetCurrentProcessId()) + L"-";
        HANDLE handle = INVALID_HANDLE_VALUE;
        for (int i = 0; i < kMostTries && handle == INVALID_HANDLE_VALUE; ++i) {
            name_ = stem + std::to_wstring(i) + L".tmp";
            handle = CreateFileW(name_.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL,
                                 nullptr);
            if (handle == INVALID_HANDLE_VALUE && GetLastError() != ERROR_FILE_EXISTS) break;
        }
        if (handle == INVALID_HANDLE_VALUE) fail(path_, fileError(GetLastError()));
        created_ = true;
        return handle;
    }

    /// `old`: there is a file to replace, whose rights, attributes and streams the new one takes over.
    void takePlace(bool old) {
        const BOOL done = old ? ReplaceFileW(target_.c_str(), name_.c_str(), nullptr,
                                             REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr)
                              : MoveFileExW(name_.c_str(), target_.c_str(), MOVEFILE_WRITE_THROUGH);
        if (done == FALSE) fail(path_, fileError(GetLastError()));
        created_ = false;
    }

  private:
    const std::string& path_;
    const std::wstring& target_;
    std::wstring name_;
    bool created_ = false;
};

/// Writes the pieces through a buffer: most are far smaller than what one call of the system is worth.
class BufferedWriter {
  public:
    BufferedWriter(HANDLE file, const std::string& path) : file_(file), path_(path) {
        buffer_.reserve(kRoom);
    }

    void write(std::string_view piece) {
        while (!piece.empty()) {
            const std::size_t part = std::min(piece.size(), kRoom - buffer_.size());
            buffer_.append(piece.substr(0, part));
            piece.remove_prefix(part);
            if (buffer_.size() == kRoom) flush();
        }
    }
    void flush() {
        DWORD written = 0;
        if (WriteFile(file_, buffer_.data(), static_cast<DWORD>(buffer_.size()), &written, nullptr) == FALSE)
            fail(path_, fileError(GetLastError()));
        if (written != buffer_.size()) fail(path_, fileError(ERROR_DISK_FULL));
        buffer_.clear();
    }

  private:
    static constexpr std::size_t kRoom = std::size_t{1} << 20;
    HANDLE file_;
    const std::string& path_;
    std::string buffer_;
};

/// Reads until the buffer is full or the file ends; a file cut short in the meantime is simply shorter.
std::size_t readAll(HANDLE file, char* data, std::size_t size, const std::string& path) {
    constexpr std::size_t kMost = std::size_t{1} << 30;
    std::size_t done = 0;
    while (done < size) {
        DWORD got = 0;
        const auto wanted = static_cast<DWORD>(std::min(size - done, kMost));
        if (ReadFile(file, data + done, wanted, &got, nullptr) == FALSE)
            failReading(path, fileError(GetLastError()));
        if (got == 0) break;
        done += got;
    }
    return done;
}

}  // namespace

FileBytes readFile(const std::string& path) {
    if (path.empty()) failReading(path, {basic::kBadFileName, "a file name is missing"});
    const std::wstring name = systemPath(path);
    const OpenFile file(CreateFileW(name.c_str(), GENERIC_READ, kShareAll, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
    if (!file.isOpen()) {
        const DWORD error = GetLastError();
        failReading(path, isFolder(name) ? folderInPlace() : fileError(error));
    }
    if (GetFileType(file.get()) != FILE_TYPE_DISK)
        failReading(path, {basic::kPathFileAccess, "this is a device, not a file"});
    LARGE_INTEGER length;
    if (GetFileSizeEx(file.get(), &length) == FALSE) failReading(path, fileError(GetLastError()));
    const auto size = static_cast<std::size_t>(length.QuadPart);
    FileBytes bytes;
    try {
        bytes.data = std::make_unique_for_overwrite<char[]>(size);
    } catch (const std::bad_alloc&) {
        failReading(path, {basic::kDeviceError, "the file is larger than this machine's memory"});
    }
    bytes.size = readAll(file.get(), bytes.data.get(), size, path);
    return bytes;
}

FileStamp stampOf(const std::string& path) {
    const OpenFile file(
        CreateFileW(systemPath(path).c_str(), 0, kShareAll, nullptr, OPEN_EXISTING, 0, nullptr));
    BY_HANDLE_FILE_INFORMATION state;
    if (!file.isOpen() || GetFileInformationByHandle(file.get(), &state) == FALSE) return {};
    const auto joined = [](DWORD high, DWORD low) { return std::uint64_t{high} << 32 | low; };
    return {.device = state.dwVolumeSerialNumber,
            .node = joined(state.nFileIndexHigh, state.nFileIndexLow),
            .size = joined(state.nFileSizeHigh, state.nFileSizeLow),
            .seconds = static_cast<std::int64_t>(
                joined(state.ftLastWriteTime.dwHighDateTime, state.ftLastWriteTime.dwLowDateTime))};
}

/// The system keeps rights and streams itself, and a folder that takes no new file is refused.
Saved saveAtomically(const std::string& path, std::span<const std::string_view> pieces, const std::string&) {
    if (path.empty()) fail(path, fileError(ERROR_INVALID_NAME));
    const std::wstring target = resolveLinks(systemPath(path));
    if (isFolder(target) || path.ends_with('/') || path.ends_with('\\')) fail(path, folderInPlace());
    const DWORD old = GetFileAttributesW(target.c_str());
    // Replacing a write-protected file would work, and isn't what its protection asks for.
    if (old != INVALID_FILE_ATTRIBUTES && (old & FILE_ATTRIBUTE_READONLY) != 0)
        fail(path, fileError(ERROR_ACCESS_DENIED));
    TemporaryFile temporary(path, target);
    OpenFile file(temporary.create());
    BufferedWriter writer(file.get(), path);
    for (const std::string_view piece : pieces) writer.write(piece);
    writer.flush();
    if (FlushFileBuffers(file.get()) == FALSE) fail(path, fileError(GetLastError()));
    if (!file.close()) fail(path, fileError(GetLastError()));
    temporary.takePlace(old != INVALID_FILE_ATTRIBUTES);
    return {};
}

}  // namespace dxf
