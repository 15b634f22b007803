#include "basic/text_file.h"

#include "basic/code_page.h"
#include "basic/error.h"
#include "basic/path.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>

namespace basic {

namespace {

namespace fs = std::filesystem;

/// Raises an error with its standard description and the file that it is about.
[[noreturn]] void raiseAbout(ErrorNumber number, const std::string& path) {
    throw Error(number, std::string(standardDescription(number)) + ": " + path);
}

/// Raises the error that a failed call on `path` stands for.
[[noreturn]] void raise(const std::string& path, int reason) {
    std::error_code ignored;
    switch (reason) {
        case ENOENT: {
            const fs::path folder = toPath(path).parent_path();
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
            raiseAbout(fs::is_directory(toPath(path), ignored) ? kPathFileAccess : kPermissionDenied, path);
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

/// Refuses what no file can be before it is opened: a pipe would wait for its other end.
void requireFile(const std::string& path, bool reading) {
    if (path.empty() || path.find('\0') != std::string::npos) throw Error(kBadFileName);
    std::error_code unseen;
    const fs::file_type type = fs::status(toPath(path), unseen).type();
    const bool pipe = type == fs::file_type::fifo || type == fs::file_type::socket;
    const bool device = type == fs::file_type::character || type == fs::file_type::block;
    if (pipe || (device && reading)) raiseAbout(kPathFileAccess, path);
}

template <typename Stream>
void open(Stream& stream, const std::string& path, std::ios::openmode mode) {
    requireFile(path, (mode & std::ios::in) != 0);
    errno = 0;
    stream.open(toPath(path), mode);
    if (!stream) raise(path, errno);
}

}  // namespace

TextReader::TextReader(const std::string& path) : path_(path) {
    open(file_, path, std::ios::in | std::ios::binary);
    fill();
}

/// Reads on; false at the file's end. A folder opens like a file on some systems and fails only here.
bool TextReader::fill() {
    constexpr std::size_t kChunk = 65536;
    bytes_.erase(0, position_);
    position_ = 0;
    const std::size_t before = bytes_.size();
    bytes_.resize(before + kChunk);
    errno = 0;
    file_.read(bytes_.data() + before, kChunk);
    bytes_.resize(before + static_cast<std::size_t>(file_.gcount()));
    if (file_.bad()) raise(path_, errno);
    return bytes_.size() > before;
}

std::string TextReader::readLine() {
    if (atEnd()) throw Error(kInputPastEnd);
    std::size_t length = 0;
    for (;;) {
        const std::size_t end = bytes_.find('\r', position_ + length);
        length = std::min(end, bytes_.size()) - position_;
        if (length > kLongestLine) raiseAbout(kOutOfStringSpace, path_);
        // The byte behind a carriage return must be in memory too: a pair may lie across two chunks.
        if (end < bytes_.size() && end + 1 < bytes_.size()) break;
        if (!fill()) break;
    }
    std::string line = fromCodePage(std::string_view(bytes_).substr(position_, length));
    position_ += length;
    if (position_ < bytes_.size()) ++position_;
    if (position_ < bytes_.size() && bytes_[position_] == '\n') ++position_;
    if (atEnd()) fill();
    return line;
}

std::string readBytes(const std::string& path) {
    std::ifstream file;
    open(file, path, std::ios::in | std::ios::binary);
    std::string bytes;
    std::array<char, 65536> chunk;
    do {
        errno = 0;
        file.read(chunk.data(), chunk.size());
        if (file.bad()) raise(path, errno);
        bytes.append(chunk.data(), static_cast<std::size_t>(file.gcount()));
        if (bytes.size() > kLargestText) raiseAbout(kOutOfStringSpace, path);
    } while (file);
    return bytes;
}

TextWriter::TextWriter(const std::string& path, Mode mode) : path_(path) {
    open(file_, path,
         std::ios::out | std::ios::binary | (mode == Mode::Append ? std::ios::app : std::ios::trunc));
}

void TextWriter::writeLine(std::string_view text) {
    if (!file_.is_open()) throw Error(kBadFileName);
    const std::string line = toCodePage(text) + "\r\n";
    errno = 0;
    if (!file_.write(line.data(), static_cast<std::streamsize>(line.size()))) raise(path_, errno);
}

void TextWriter::close() {
    if (!file_.is_open()) return;
    // A write may have failed without a word to its caller, when the caller skips errors.
    const bool failedBefore = !file_;
    errno = 0;
    const bool flushed = file_.rdbuf()->pubsync() == 0;
    int reason = flushed ? 0 : errno;
    const bool closed = file_.rdbuf()->close() != nullptr;
    if (flushed && !closed) reason = errno;
    if (failedBefore || !flushed || !closed) raise(path_, reason);
}

}  // namespace basic
