#include "graphics/polygon.h"

#include "graphics/edge_walk.h"
#include "graphics/polygon_mask.h"
#include "graphics/row_runs.h"

#include <algorithm>

namespace norvik::graphics {

namespace {

Extent extentOf(std::span<const Point> corners) {
  const Point start = corners.front();
  Extent extent{start.x, start.y, start.x, start.y};
  for (const Point corner : corners) {
    extent.left = std::min<std::int64_t>(extent.left, corner.x);
    extent.top = std::min<std::int64_t>(extent.top, corner.y);
    extent.right = std::max<std::int64_t>(extent.right, corner.x);
    extent.bottom = std::max<std::int64_t>(extent.bottom, corner.y);
  }
  return extent;
}

Extent clipped(const Extent& extent, const Brush& brush) {
  return {std::max<std::int64_t>(extent.left, 0), std::max<std::int64_t>(extent.top, 0),
          std::min<std::int64_t>(extent.right, brush.width() - 1),
          std::min<std::int64_t>(extent.bottom, brush.height() - 1)};
}

/// Calls `take` with each side that reaches the rows of the extent.
template <typename Take>
void eachSide(std::span<const Point> corners, const Extent& extent, Take take) {
  Point from = corners.back();
  for (const Point to : corners) {
    const bool above = from.y < extent.top && to.y < extent.top;
    const bool below = from.y > extent.bottom && to.y > extent.bottom;
    if (!above && !below) take(EdgeWalk(from, to, extent.top));
    from = to;
  }
}

/// Whether a polygon reaches no further than from a pixel to the next ones. Nearly all those of a
/// large mesh are like that.
bool isTiny(const Extent& extent) {
  return extent.right - extent.left <= 1 && extent.bottom - extent.top <= 1;
}

/// Such a polygon is its corners: none of its sides passes over another pixel, and none lies
/// within.
void paintTiny(const Brush& brush, std::span<const Point> corners, const Extent& whole,
               const Extent& within) {
  for (std::int64_t row = within.top; row <= within.bottom; ++row) {
    Run run{whole.right, whole.left};
    for (const Point corner : corners) {
      if (corner.y != row) continue;
      run.first = std::min<std::int64_t>(run.first, corner.x);
      run.last = std::max<std::int64_t>(run.last, corner.x);
    }
    run.first = std::max(run.first, within.left);
    run.last = std::min(run.last, within.right);
    if (run.first <= run.last) brush.paint(row, run);
  }
}

/// A polygon of few sides; all that it needs is on the stack.
class SmallPolygon {
 public:
  SmallPolygon(std::span<const Point> corners, const Extent& extent) : extent_(extent) {
    eachSide(corners, extent, [this](const EdgeWalk& side) { sides_[count_++] = side; });
  }

  void paint(const Brush& brush) {
    std::int64_t row = extent_.top;
    while (row <= extent_.bottom) {
      row = paintRow(brush, row);
      row = paintBetween(brush, row);
    }
  }

 private:
  static bool reaches(const EdgeWalk& side, std::int64_t row) {
    return side.row() <= row && row <= side.lastRow();
  }

  std::int64_t paintRow(const Brush& brush, std::int64_t row) {
    for (std::size_t i = 0; i < count_; ++i) {
      EdgeWalk& side = sides_[i];
      if (!reaches(side, row)) continue;
      if (row == side.lastRow()) {
        runs_.touch(side.run());
      } else {
        runs_.cross(side.run());
        side.advance();
      }
    }
    runs_.paint(brush, row);
    return row + 1;
  }

  /// Paints the rows down to the next corner if two sides go through them: nearly all rows are of
  /// this sort. The row behind them.
  std::int64_t paintBetween(const Brush& brush, std::int64_t row) {
    std::array<EdgeWalk*, RowRuns::kMostSides> through{};
    std::size_t found = 0;
    std::int64_t end = extent_.bottom + 1;
    for (std::size_t i = 0; i < count_; ++i) {
      EdgeWalk& side = sides_[i];
      if (side.lastRow() < row) continue;
      const bool begun = side.row() == row && row < side.lastRow();
      end = std::min(end, begun ? side.lastRow() : side.row());
      if (begun) through[found++] = &side;
    }
    if (found != 2) return row;
    EdgeWalk one = *through[0];
    EdgeWalk other = *through[1];
    for (; row < end; ++row) {
      const Run a = one.run();
      const Run b = other.run();
      brush.paint(row, {std::min(a.first, b.first), std::max(a.last, b.last)});
      one.advance();
      other.advance();
    }
    *through[0] = one;
    *through[1] = other;
    return row;
  }

  Extent extent_;
  std::array<EdgeWalk, RowRuns::kMostSides> sides_;
  std::size_t count_ = 0;
  RowRuns runs_;
};

}  // namespace

void paintPolygon(const Brush& brush, std::span<const Point> corners) {
  if (corners.empty()) return;
  const Extent whole = extentOf(corners);
  const Extent extent = clipped(whole, brush);
  if (extent.left > extent.right || extent.top > extent.bottom) return;
  if (isTiny(whole)) return paintTiny(brush, corners, whole, extent);
  if (corners.size() <= RowRuns::kMostSides) {
    SmallPolygon(corners, extent).paint(brush);
    return;
  }
  PolygonMask mask(extent);
  eachSide(corners, extent, [&](const EdgeWalk& side) { mask.add(side); });
  mask.paint(brush);
}

}  // namespace norvik::graphics
