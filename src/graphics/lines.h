#pragma once
// Dots, lines and boxes.

#include "graphics/brush.h"
#include "graphics/point.h"

namespace norvik::graphics {

// A pen is a square of `size` pixels with the place that it draws in its middle; a pen of an even
// size reaches one pixel further up and to the left. A size below 1 is 1. Each function paints each
// pixel that the pen passes over once.

void paintDot(const Brush& brush, Point at, int size);
/// The pen on each pixel that EdgeWalk gives the line.
void paintLine(const Brush& brush, Point from, Point to, int size);
/// The pen along the four sides of the box between two opposite corners.
void paintBox(const Brush& brush, Point corner, Point opposite, int size);

}  // namespace norvik::graphics
