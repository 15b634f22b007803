#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace drawing {
class Drawing;
}

namespace shell {

/// What a picture lacks: entities that the drawing hides, and those that nobody draws, by their type.
struct PictureGaps {
    std::size_t hidden = 0;
    std::vector<std::pair<std::string, std::size_t>> notDrawn;
};

/// Whether a file of that name is a picture: .png, .svg or .pdf.
bool isPictureFile(std::string_view path);

/// Raises kFileNotFound where the program that draws pictures isn't installed.
void requirePictureProgram();

/// Writes a picture of the drawing as it is now, unsaved changes included, to a .png, .svg or .pdf file. The
/// program vorlane-picture beside this one, or on PATH, draws it, so that only it needs the libraries for
/// that; `options` are handed to it. Raises kBadFileName for another ending, kFileNotFound where the program
/// isn't installed, kPathFileAccess with its reason where it couldn't write.
PictureGaps writePicture(const drawing::Drawing& drawing, const std::string& path,
                         const std::vector<std::string>& options = {});

}  // namespace shell
