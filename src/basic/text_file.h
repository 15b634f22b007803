#pragma once

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace basic {

/// Sequential text files in the single-byte code page, each opened and closed within one call of the logic.
/// Failures raise kBadFileName, kFileNotFound, kPathNotFound, kPathFileAccess (a folder), kPermissionDenied,
/// kDiskFull or kDeviceError.

/// Reads line by line. A line ends at a carriage return or at carriage return and line feed; a lone line feed
/// is part of the line.
class TextReader {
  public:
    explicit TextReader(const std::string& path);
    bool atEnd() const { return position_ >= bytes_.size(); }
    /// The next line as UTF-8, without its end. Past the end raises kInputPastEnd.
    std::string readLine();

  private:
    std::string bytes_;
    std::size_t position_ = 0;
};

/// Writes lines, each ended by carriage return and line feed.
class TextWriter {
  public:
    enum class Mode { Replace, Append };  ///< Replace empties an existing file; both create a new one
    TextWriter(const std::string& path, Mode mode);
    ~TextWriter();
    TextWriter(const TextWriter&) = delete;
    TextWriter& operator=(const TextWriter&) = delete;

    /// Raises kBadFileName after `close`.
    void writeLine(std::string_view text);
    /// Flushes and closes, raising what writing raises. The destructor closes without a word.
    void close();

  private:
    std::string path_;
    std::FILE* file_ = nullptr;
};

}  // namespace basic
