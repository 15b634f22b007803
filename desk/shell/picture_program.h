#pragma once

#include <string>
#include <vector>

namespace drawing {
class Drawing;
}

namespace shell {

/// Writes a picture of the drawing as it is now, unsaved changes included, to a .png, .svg or .pdf file. The
/// program vorlane-picture beside this one, or on PATH, draws it, so that only it needs the libraries for
/// that; `options` are handed to it. Raises kBadFileName for another ending, kFileNotFound where the program
/// isn't installed, kPathFileAccess where it couldn't write.
void writePicture(const drawing::Drawing& drawing, const std::string& path,
                  const std::vector<std::string>& options = {});

}  // namespace shell
