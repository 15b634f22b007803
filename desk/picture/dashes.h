#pragma once

#include "desk/picture/line_type.h"
#include "desk/picture/projection.h"

#include <functional>
#include <span>

namespace picture {

/// Clips a line to a frame. False where nothing is left.
bool clipLine(const Frame& frame, Point2& from, Point2& to);

/// Hands the parts of a polyline that meet the frame to `emit`, each as a polyline of its own.
void clipPolyline(std::span<const Point2> points, const Frame& frame,
                  const std::function<void(std::span<const Point2>)>& emit);

/// Cuts a polyline into the dashes of a linetype, `scale` device units a unit of the type. As in the host the
/// ends have a dash each: what the length leaves over is shared between the first and the last one, and a
/// line that has no room for two dashes is continuous. Only what meets the frame is handed on.
void dashPolyline(std::span<const Point2> points, const LineType& type, double scale, const Frame& frame,
                  const std::function<void(std::span<const Point2>)>& emit);

}  // namespace picture
