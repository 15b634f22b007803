#pragma once

#include <cstddef>
#include <fstream>
#include <string>
#include <string_view>

namespace basic {

/// Sequential text files in the single-byte code page, each opened and closed within one call of the logic.
/// Failures raise kBadFileName, kFileNotFound, kPathNotFound, kPathFileAccess (a folder, a pipe, a device),
/// kPermissionDenied, kDiskFull or kDeviceError.

/// Reads line by line, with no more of the file in memory than a line and some. A line ends at a carriage
/// return or at carriage return and line feed; a lone line feed is part of the line.
class TextReader {
  public:
    /// The longest line, in bytes of the file.
    static constexpr std::size_t kLongestLine = std::size_t{16} << 20;

    explicit TextReader(const std::string& path);
    bool atEnd() const { return position_ >= bytes_.size(); }
    /// The next line as UTF-8, without its end. Past the end raises kInputPastEnd; a line longer than
    /// kLongestLine raises kOutOfStringSpace.
    std::string readLine();

  private:
    bool fill();

    std::string path_;
    std::ifstream file_;
    std::string bytes_;  ///< what was read of the file, from the line in hand on
    std::size_t position_ = 0;
};

/// The largest file that is read as a whole, in bytes.
constexpr std::size_t kLargestText = std::size_t{256} << 20;

/// The bytes of a whole file; one larger than kLargestText raises kOutOfStringSpace.
std::string readBytes(const std::string& path);

/// Writes lines, each ended by carriage return and line feed.
class TextWriter {
  public:
    enum class Mode { Replace, Append };  ///< Replace empties an existing file; both create a new one
    TextWriter(const std::string& path, Mode mode);

    /// Raises kBadFileName after `close`.
    void writeLine(std::string_view text);
    /// Flushes and closes, raising what writing raises. The destructor closes without a word.
    void close();

  private:
    std::string path_;
    std::ofstream file_;
};

}  // namespace basic
