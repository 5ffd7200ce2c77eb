#pragma once
// What a polygon of few corners covers on one row.

#include "graphics/brush.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace norvik::graphics {

/// Gathers the runs of a polygon's sides on a row and paints them with all that lies between, each
/// pixel once. Lives on the stack.
class RowRuns {
 public:
  static constexpr std::size_t kMostSides = 8;

  /// The pixels of a side that goes through the row.
  void cross(Run run) {
    // Any pixel of the run serves as the crossing: between the two there are but pixels of the run.
    crossings_[crossed_++] = run.first;
    touch(run);
  }
  /// The pixels of a side that ends on the row.
  void touch(Run run) { runs_[count_++] = run; }

  /// Paints the row and forgets it. At least one side reaches the row, and the sides that go
  /// through it are even in number.
  void paint(const Brush& brush, std::int64_t row);

 private:
  bool join(Run& all) const;
  void paintApart(const Brush& brush, std::int64_t row);

  std::array<Run, kMostSides + kMostSides / 2> runs_;
  std::array<std::int64_t, kMostSides> crossings_{};
  std::size_t count_ = 0;
  std::size_t crossed_ = 0;
};

}  // namespace norvik::graphics
