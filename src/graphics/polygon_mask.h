#pragma once
// What a polygon of many corners covers.

#include "graphics/brush.h"
#include "graphics/edge_walk.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace norvik::graphics {

/// The part of a grid that a polygon may cover: rows and columns, the last ones included.
struct Extent {
  std::int64_t left = 0;
  std::int64_t top = 0;
  std::int64_t right = -1;
  std::int64_t bottom = -1;
};

/// Marks the sides of a polygon in a grid, then paints them with all that they go around: the time
/// is that of the sides and of the grid, however the sides cross.
class PolygonMask {
 public:
  explicit PolygonMask(const Extent& extent);

  void add(EdgeWalk side);
  void paint(const Brush& brush) const;

 private:
  std::uint8_t* rowMarks(std::int64_t row) {
    return marks_.data() + static_cast<std::size_t>(row - extent_.top) * width_;
  }

  Extent extent_;
  std::size_t width_;
  std::vector<std::uint8_t> marks_;
};

}  // namespace norvik::graphics
