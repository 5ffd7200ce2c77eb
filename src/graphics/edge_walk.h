#pragma once
// The pixels of a line, row by row.

#include "graphics/brush.h"
#include "graphics/point.h"

#include <algorithm>
#include <cstdint>

namespace norvik::graphics {

/// Walks down a line and tells the run of its pixels on each row. A line has one pixel for each
/// step along its longer axis, the one whose centre is nearest; of two equally near, the right or
/// lower one. So a line has the same pixels from either end, and clipping changes none of them. All
/// is exact for any coordinates.
class EdgeWalk {
 public:
  EdgeWalk() = default;
  /// Begins on `row`, or on the line's first row if that lies further down; `row` must not lie
  /// below the line.
  EdgeWalk(Point from, Point to, std::int64_t row);

  std::int64_t row() const { return row_; }
  std::int64_t lastRow() const { return lastRow_; }

  /// The line's pixels on the row; at least one.
  Run run() const {
    switch (kind_) {
      case Kind::steep:
        return {place_.whole, place_.whole};
      case Kind::toTheRight:
        return {above_, std::min(place_.whole - 1, lowerEnd_)};
      case Kind::toTheLeft:
        return {std::max(place_.whole + 1, lowerEnd_), above_};
      case Kind::level:
        break;
    }
    return {above_, lowerEnd_};
  }

  /// Goes down one row; not from the last.
  void advance() {
    ++row_;
    above_ = place_.whole;
    place_.whole += step_.whole;
    place_.part += step_.part;
    if (place_.part < unit_) return;
    place_.part -= unit_;
    ++place_.whole;
  }

 private:
  /// `level` lies on one row; `steep` has one pixel a row; the others go down to their side with
  /// more pixels than rows.
  enum class Kind { level, steep, toTheRight, toTheLeft };

  /// A whole number and a fraction of 0 to less than 1, counted in parts of 1 / unit_.
  struct Place {
    std::int64_t whole = 0;
    std::int64_t part = 0;
  };

  Place quotient(std::int64_t value) const;
  Place placeOn(std::int64_t rowsDown, Point top, Point bottom) const;

  Kind kind_ = Kind::level;
  std::int64_t row_ = 0;
  std::int64_t lastRow_ = 0;
  std::int64_t unit_ = 1;
  // Of a steep line the whole part is its pixel. Of the other two it parts the pixels of this row
  // from those of the next: on the right it is the first of the next row, on the left the last.
  Place place_;
  Place step_;
  std::int64_t above_ = 0;  ///< what place_.whole was on the row above; on the first, the upper end
  std::int64_t lowerEnd_ = 0;
};

}  // namespace norvik::graphics
