#pragma once
// Places on a surface.

namespace norvik::graphics {

/// A pixel's place, from the top left corner; it may lie outside the surface.
struct Point {
  int x = 0;
  int y = 0;
  bool operator==(const Point&) const = default;
};

}  // namespace norvik::graphics
