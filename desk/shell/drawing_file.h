#pragma once

#include "desk/dxf/file.h"
#include "desk/dxf/transient.h"

#include <filesystem>
#include <string>

namespace shell {

/// Who has a drawing open, as the lock file beside it tells: lines of user, machine and time, as CAD programs
/// write them, and with ours the process.
struct Holder {
    std::string user, machine, since;

    /// "anna on desk7 since Mon Nov 23 02:41:46 2026"
    std::string text() const;
};

/// The file of the open drawing towards other programs: the lock file "NAME.dwl" beside it that says who has
/// the drawing open, and whether the file was changed meanwhile. A lock file that a process of this machine
/// left behind when it was killed is replaced; where none can be made, there is none.
class DrawingFile {
  public:
    /// `stamp` is the file's as it was before it was read.
    DrawingFile(std::string path, const dxf::FileStamp& stamp);
    /// Takes the lock file away, if it is ours.
    ~DrawingFile();
    DrawingFile(const DrawingFile&) = delete;
    DrawingFile& operator=(const DrawingFile&) = delete;

    const std::string& path() const { return path_; }
    /// Who else had the drawing open when we opened it; an empty user for nobody.
    const Holder& other() const { return other_; }
    /// Whether there is a file that isn't as it was when we read or wrote it last.
    bool wasChanged() const;
    void wasSaved() { stamp_ = dxf::stampOf(path_); }

  private:
    bool takeLock();

    std::string path_;
    std::filesystem::path lock_;
    dxf::FileStamp stamp_;
    Holder other_;
    bool isOurs_ = false;
    dxf::Transient transient_;
};

}  // namespace shell
