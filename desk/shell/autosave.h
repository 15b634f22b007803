#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace drawing {
class Drawing;
}

namespace shell {

/// A drawing's unsaved changes, kept in a folder of the user's so that they survive the program's end by a
/// signal or a power cut: a copy of the drawing as it would be saved, named after the drawing's place and the
/// process that works on it.
class Autosave {
  public:
    /// Of the drawing at `path`. The folder is made at the first writing.
    Autosave(std::filesystem::path folder, const std::string& path);
    /// Takes the copy away: the end is a clean one, unless an exception is on its way.
    ~Autosave();
    Autosave(const Autosave&) = delete;
    Autosave& operator=(const Autosave&) = delete;

    /// Writes the drawing as it is now, or takes the copy away where it has nothing unsaved. A drawing that
    /// didn't change since isn't written again. Raises basic::Error where it can't be written.
    void keep(const drawing::Drawing& drawing);
    void remove();
    /// From here on the copy stays, for the next opening to find.
    void leave();

    /// Copies of the drawing at `path` that processes of this machine left which are gone, the newest first.
    static std::vector<std::filesystem::path> leftBehind(const std::filesystem::path& folder,
                                                         const std::string& path);

  private:
    std::filesystem::path folder_, file_;
    std::uint64_t revision_ = 0;
    bool exists_ = false;
};

}  // namespace shell
