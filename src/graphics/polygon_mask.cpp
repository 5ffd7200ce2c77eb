#include "graphics/polygon_mask.h"

#include <algorithm>

namespace norvik::graphics {

namespace {

constexpr std::uint8_t kOutline = 1;
constexpr std::uint8_t kTurn = 2;  ///< from here on to the right inside and outside change places

}  // namespace

PolygonMask::PolygonMask(const Extent& extent)
    : extent_(extent),
      width_(static_cast<std::size_t>(extent.right - extent.left + 1)),
      marks_(width_ * static_cast<std::size_t>(extent.bottom - extent.top + 1)) {}

void PolygonMask::add(EdgeWalk side) {
  while (side.row() <= extent_.bottom) {
    const Run run = side.run();
    std::uint8_t* const marks = rowMarks(side.row());
    const std::int64_t first = std::max(run.first, extent_.left);
    const std::int64_t last = std::min(run.last, extent_.right);
    for (std::int64_t x = first; x <= last; ++x) marks[x - extent_.left] |= kOutline;
    // A side that ends on this row does not go through it.
    if (side.row() == side.lastRow()) return;
    if (first <= extent_.right) marks[first - extent_.left] ^= kTurn;
    side.advance();
  }
}

void PolygonMask::paint(const Brush& brush) const {
  const std::uint8_t* mark = marks_.data();
  for (std::int64_t row = extent_.top; row <= extent_.bottom; ++row) {
    bool inside = false;
    std::int64_t begin = extent_.left;  // of the run that is being gathered
    for (std::int64_t x = extent_.left; x <= extent_.right; ++x, ++mark) {
      if ((*mark & kTurn) != 0) inside = !inside;
      if (inside || (*mark & kOutline) != 0) continue;
      brush.paint(row, {begin, x - 1});
      begin = x + 1;
    }
    brush.paint(row, {begin, extent_.right});
  }
}

}  // namespace norvik::graphics
