#pragma once

#include "desk/dxf/tag_reader.h"
#include "desk/picture/display_list.h"

#include <optional>

namespace picture {

/// A VIEWPORT that shows a view; nothing for the one that stands for the paper itself and for one that is
/// off.
std::optional<Viewport> readViewport(dxf::TagReader tags);

}  // namespace picture
