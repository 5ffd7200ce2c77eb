#pragma once
// Filled polygons.

#include "graphics/brush.h"
#include "graphics/point.h"

#include <span>

namespace norvik::graphics {

/// Paints a polygon, each of its pixels once. A pixel belongs to it
/// - if it is one of the closed outline, whose lines have the pixels that EdgeWalk gives them, or
/// - if the outline goes around its centre by the even-odd rule: of the sides that cross the
///   pixel's row to the left of its centre there is an odd number. (A centre on the outline itself
///   is a pixel of the outline.)
/// The corners are centres of pixels. Of two corners the polygon is a line, of one a dot.
void paintPolygon(const Brush& brush, std::span<const Point> corners);

}  // namespace norvik::graphics
