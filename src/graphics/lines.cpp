#include "graphics/lines.h"

#include "graphics/edge_walk.h"

#include <algorithm>

namespace norvik::graphics {

namespace {

/// How far a pen reaches from its place.
struct Pen {
  explicit Pen(int size) : back(std::max(size, 1) / 2), ahead(std::max(size, 1) - 1 - back) {}

  Run around(Run run) const { return {run.first - back, run.last + ahead}; }

  std::int64_t back;   ///< to the left and up
  std::int64_t ahead;  ///< to the right and down
};

void paintRows(const Brush& brush, Run rows, Run run) {
  const std::int64_t last = std::min<std::int64_t>(rows.last, brush.height() - 1);
  for (std::int64_t row = std::max<std::int64_t>(rows.first, 0); row <= last; ++row) {
    brush.paint(row, run);
  }
}

void paintThinLine(const Brush& brush, Point from, Point to) {
  const std::int64_t last = std::min(std::max(from.y, to.y), brush.height() - 1);
  for (EdgeWalk walk(from, to, 0);; walk.advance()) {
    brush.paint(walk.row(), walk.run());
    if (walk.row() >= last) return;
  }
}

}  // namespace

void paintDot(const Brush& brush, Point at, int size) {
  const Pen pen(size);
  paintRows(brush, pen.around({at.y, at.y}), pen.around({at.x, at.x}));
}

void paintLine(const Brush& brush, Point from, Point to, int size) {
  const Pen pen(size);
  const auto [left, right] = std::minmax(from.x, to.x);
  const auto [top, bottom] = std::minmax(from.y, to.y);
  const Run columns = pen.around({left, right});
  const Run rows = pen.around({top, bottom});
  const std::int64_t firstRow = std::max<std::int64_t>(rows.first, 0);
  const std::int64_t lastRow = std::min<std::int64_t>(rows.last, brush.height() - 1);
  if (firstRow > lastRow || columns.last < 0 || columns.first >= brush.width()) return;
  if (size <= 1) return paintThinLine(brush, from, to);

  // A row gets the pen from several rows of the line. Since a line goes to one side only, what is
  // between the first and the last of them is covered too.
  EdgeWalk upper(from, to, firstRow - pen.ahead);
  EdgeWalk lower(from, to, std::min<std::int64_t>(firstRow + pen.back, bottom));
  for (std::int64_t row = firstRow; row <= lastRow; ++row) {
    if (upper.row() < row - pen.ahead) upper.advance();
    if (lower.row() < std::min<std::int64_t>(row + pen.back, bottom)) lower.advance();
    const Run above = upper.run();
    const Run below = lower.run();
    brush.paint(row,
                pen.around({std::min(above.first, below.first), std::max(above.last, below.last)}));
  }
}

void paintBox(const Brush& brush, Point corner, Point opposite, int size) {
  const Pen pen(size);
  const auto [left, right] = std::minmax(corner.x, opposite.x);
  const auto [top, bottom] = std::minmax(corner.y, opposite.y);
  const Run columns = pen.around({left, right});
  const Run atLeft = pen.around({left, left});
  const Run atRight = pen.around({right, right});
  const Run atTop = pen.around({top, top});
  const Run atBottom = pen.around({bottom, bottom});
  const bool solid = atLeft.last + 1 >= atRight.first || atTop.last + 1 >= atBottom.first;
  if (solid) return paintRows(brush, pen.around({top, bottom}), columns);
  paintRows(brush, atTop, columns);
  paintRows(brush, {atTop.last + 1, atBottom.first - 1}, atLeft);
  paintRows(brush, {atTop.last + 1, atBottom.first - 1}, atRight);
  paintRows(brush, atBottom, columns);
}

}  // namespace norvik::graphics
