#pragma once

#include "desk/painter/inks.h"
#include "desk/picture/picture.h"
#include "desk/picture/projection.h"

#include <QSize>
#include <QString>
#include <optional>

namespace painter {

struct PictureFileOptions {
    QSize size{1600, 1000};     ///< pixels; of PDF and SVG the longer side is 420 mm, with these proportions
    bool dark = false;          ///< on a near-black ground in place of white
    bool screenColors = false;  ///< colours that hardly show are made to, as in the window
    bool weights = false;       ///< lines as wide as their weights
    double margin = 0.03;       ///< free edge, as a share of the shorter side
    std::optional<geometry::Box> area;  ///< what is shown; without it all of the space
};

/// Writes a picture of a space or a block to a file; its ending tells the kind: .png, .svg or .pdf. Raises
/// basic::Error: kInvalidCall for another ending, kPathFileAccess where the file can't be written. A file of
/// that name stays until the new one is complete.
void writePicture(picture::Picture& picture, drawing::BlockId space, const QString& path,
                  const PictureFileOptions& options);

/// The projection that shows a box in a frame, centred, with a margin in device units. A box without extent
/// becomes one of a unit.
picture::Projection fitting(const geometry::Box& box, const picture::Frame& frame, double margin);

}  // namespace painter
