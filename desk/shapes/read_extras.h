#pragma once

#include "desk/dxf/tag_reader.h"
#include "desk/shapes/geometry.h"
#include "desk/shapes/text_style.h"

#include <utility>
#include <vector>

namespace shapes {

// Kinds that a plan seldom holds. Each reads the groups of one entity of the kind that its name tells and
// gives world coordinates.

/// MLINE: the lines of its elements, by the offsets that each vertex holds (41) along its miter (13).
std::vector<Stroke> readMLine(dxf::TagReader tags);
/// IMAGE and WIPEOUT: the border, or the polygon that it is clipped to (14).
Path readImageFrame(dxf::TagReader tags);
/// OLE2FRAME: between two corners, 10 and 11.
Path readOleFrame(dxf::TagReader tags);
/// MESH: the edges of its faces as they are before any smoothing, each once.
Path readMesh(dxf::TagReader tags);
/// VIEWPORT: the frame; empty for the one that stands for the sheet itself.
Path readViewportFrame(dxf::TagReader tags);

/// MULTILEADER: its lines with their landings, and arrow heads.
Geometry readMultiLeader(dxf::TagReader tags);
/// The arrow head of a LEADER, sized by its dimension style.
Geometry readLeaderArrow(const Drawing& drawing, EntityId id);

/// The texts of a MULTILEADER or a TOLERANCE; empty for other types.
std::vector<TextPiece> readExtraTexts(const Drawing& drawing, const TextStyles& styles, EntityId id);

}  // namespace shapes
