#include "graphics/row_runs.h"

#include <algorithm>

namespace norvik::graphics {

void RowRuns::paint(const Brush& brush, std::int64_t row) {
  Run all;
  if (crossed_ <= 2 && join(all)) {
    brush.paint(row, all);
  } else {
    paintApart(brush, row);
  }
  count_ = 0;
  crossed_ = 0;
}

/// Joins the runs of a row that has one inside at most, as nearly all rows do; false if there may
/// be a gap between them.
bool RowRuns::join(Run& all) const {
  all = crossed_ == 0
            ? runs_[0]
            : Run{std::min(crossings_[0], crossings_[1]), std::max(crossings_[0], crossings_[1])};
  for (std::size_t i = 0; i < count_; ++i) {
    const Run run = runs_[i];
    if (run.first > all.last + 1 || run.last < all.first - 1) return false;
    all = {std::min(all.first, run.first), std::max(all.last, run.last)};
  }
  return true;
}

void RowRuns::paintApart(const Brush& brush, std::int64_t row) {
  std::sort(crossings_.begin(), crossings_.begin() + crossed_);
  for (std::size_t i = 0; i < crossed_; i += 2) touch({crossings_[i], crossings_[i + 1]});
  std::sort(runs_.begin(), runs_.begin() + count_,
            [](const Run& a, const Run& b) { return a.first < b.first; });
  Run joined = runs_[0];
  for (std::size_t i = 1; i < count_; ++i) {
    if (runs_[i].first <= joined.last + 1) {
      joined.last = std::max(joined.last, runs_[i].last);
    } else {
      brush.paint(row, joined);
      joined = runs_[i];
    }
  }
  brush.paint(row, joined);
}

}  // namespace norvik::graphics
