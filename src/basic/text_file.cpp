#include "basic/text_file.h"

#include "basic/code_page.h"
#include "basic/error.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>

namespace basic {

namespace {

namespace fs = std::filesystem;

fs::path nativePath(const std::string& path) {
    return {reinterpret_cast<const char8_t*>(path.data()),
            reinterpret_cast<const char8_t*>(path.data()) + path.size()};
}

/// Raises an error with its standard description and the file that it is about.
[[noreturn]] void raiseAbout(ErrorNumber number, const std::string& path) {
    throw Error(number, std::string(standardDescription(number)) + ": " + path);
}

/// Raises the error that a failed call on `path` stands for.
[[noreturn]] void raise(const std::string& path, int reason) {
    std::error_code ignored;
    switch (reason) {
        case ENOENT: {
            const fs::path folder = nativePath(path).parent_path();
            const bool folderThere = folder.empty() || fs::is_directory(folder, ignored);
            raiseAbout(folderThere ? kFileNotFound : kPathNotFound, path);
        }
        case ENOTDIR:
            raiseAbout(kPathNotFound, path);
        case EISDIR:
            raiseAbout(kPathFileAccess, path);
        case EACCES:
        case EPERM:
        case EROFS:
            raiseAbout(fs::is_directory(nativePath(path), ignored) ? kPathFileAccess : kPermissionDenied,
                       path);
        case EINVAL:
        case ENAMETOOLONG:
            raiseAbout(kBadFileName, path);
        case ENOSPC:
#ifdef EDQUOT  // not every system has quotas
        case EDQUOT:
#endif
        case EFBIG:
            raiseAbout(kDiskFull, path);
        default:
            raiseAbout(kDeviceError, path);
    }
}

std::FILE* openFile(const std::string& path, const char* mode) {
    if (path.empty() || path.find('\0') != std::string::npos) throw Error(kBadFileName);
    errno = 0;
    std::FILE* file = std::fopen(path.c_str(), mode);
    if (file == nullptr) raise(path, errno);
    return file;
}

std::string readWhole(const std::string& path) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(openFile(path, "rb"), std::fclose);
    std::string bytes;
    std::array<char, 65536> chunk;
    for (;;) {
        errno = 0;
        const std::size_t count = std::fread(chunk.data(), 1, chunk.size(), file.get());
        bytes.append(chunk.data(), count);
        if (count == chunk.size()) continue;
        // A folder opens like a file on some systems and fails only here.
        if (std::ferror(file.get()) != 0) raise(path, errno);
        return bytes;
    }
}

}  // namespace

TextReader::TextReader(const std::string& path) : bytes_(readWhole(path)) {}

std::string TextReader::readLine() {
    if (atEnd()) throw Error(kInputPastEnd);
    const std::string_view rest = std::string_view(bytes_).substr(position_);
    const std::size_t length = std::min(rest.find('\r'), rest.size());
    position_ += length;
    if (length < rest.size()) ++position_;
    if (length < rest.size() && position_ < bytes_.size() && bytes_[position_] == '\n') ++position_;
    return fromCodePage(rest.substr(0, length));
}

TextWriter::TextWriter(const std::string& path, Mode mode)
    : path_(path), file_(openFile(path, mode == Mode::Append ? "ab" : "wb")) {}

TextWriter::~TextWriter() {
    if (file_ != nullptr) std::fclose(file_);
}

void TextWriter::writeLine(std::string_view text) {
    if (file_ == nullptr) throw Error(kBadFileName);
    const std::string line = toCodePage(text) + "\r\n";
    errno = 0;
    if (std::fwrite(line.data(), 1, line.size(), file_) != line.size()) raise(path_, errno);
}

void TextWriter::close() {
    if (file_ == nullptr) return;
    std::FILE* file = file_;
    file_ = nullptr;
    errno = 0;
    int reason = std::fflush(file) != 0 ? errno : 0;
    // A write may have failed without a word to its caller, when the caller skips errors.
    if (reason == 0 && std::ferror(file) != 0) reason = EIO;
    if (std::fclose(file) != 0 && reason == 0) reason = errno;
    if (reason != 0) raise(path_, reason);
}

}  // namespace basic
