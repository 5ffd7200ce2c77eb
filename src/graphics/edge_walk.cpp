#include "graphics/edge_walk.h"

#include <cstdlib>
#include <utility>

namespace norvik::graphics {

EdgeWalk::EdgeWalk(Point from, Point to, std::int64_t row) {
  if (to.y < from.y || (to.y == from.y && to.x < from.x)) std::swap(from, to);
  row_ = std::max<std::int64_t>(row, from.y);
  lastRow_ = to.y;
  above_ = from.x;
  lowerEnd_ = to.x;
  const std::int64_t across = std::int64_t{to.x} - from.x;
  const std::int64_t down = std::int64_t{to.y} - from.y;
  if (down == 0) return;

  unit_ = 2 * down;
  const bool steep = std::abs(across) <= down;
  if (steep) {
    kind_ = Kind::steep;
  } else {
    kind_ = across > 0 ? Kind::toTheRight : Kind::toTheLeft;
  }
  step_ = quotient(2 * across);
  const std::int64_t rowsDown = row_ - from.y;
  if (steep || rowsDown == 0) {
    place_ = placeOn(rowsDown, from, to);
  } else {
    place_ = placeOn(rowsDown - 1, from, to);
    --row_;
    advance();
  }
}

/// `value` parts, rounded down to a whole number.
EdgeWalk::Place EdgeWalk::quotient(std::int64_t value) const {
  // Mostly the walk goes less than a pixel to a side, and a division is dear.
  if (value >= 0 && value < unit_) return {0, value};
  if (value < 0 && value >= -unit_) return {-1, value + unit_};
  Place result{value / unit_, value % unit_};
  if (result.part < 0) {
    result.part += unit_;
    --result.whole;
  }
  return result;
}

EdgeWalk::Place EdgeWalk::placeOn(std::int64_t rowsDown, Point top, Point bottom) const {
  const std::int64_t across = std::int64_t{bottom.x} - top.x;
  const std::int64_t down = std::int64_t{bottom.y} - top.y;
  // The crossing of the row's centre, as a whole number and a rest: the product takes all 64 bits.
  std::int64_t whole = 0;
  std::int64_t rest = 0;
  if (rowsDown > 0) {
    const auto product =
        static_cast<std::uint64_t>(rowsDown) * static_cast<std::uint64_t>(std::abs(across));
    whole = static_cast<std::int64_t>(product / static_cast<std::uint64_t>(down));
    rest = static_cast<std::int64_t>(product % static_cast<std::uint64_t>(down));
    if (across < 0) {
      whole = -whole;
      rest = -rest;
    }
  }
  // From there half a pixel to the right, to round to the nearest; or half a row down to the border
  // of the rows, where a border in a pixel's centre gives that pixel to the lower row.
  std::int64_t shift = down;
  if (kind_ == Kind::toTheRight) shift = across + unit_ - 1;
  if (kind_ == Kind::toTheLeft) shift = across;
  Place place = quotient(2 * rest + shift);
  place.whole += top.x + whole;
  return place;
}

}  // namespace norvik::graphics
