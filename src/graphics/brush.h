#pragma once
// What all drawing comes down to: runs of pixels on rows.

#include <algorithm>
#include <cstdint>

namespace norvik::graphics {

/// Pixels of one row, both ends included; none where the last comes before the first. The ends may
/// lie anywhere.
struct Run {
  std::int64_t first = 0;
  std::int64_t last = -1;
};

/// Writes runs of one colour into a grid of pixels, clipped to it. Every drawing hands over each
/// pixel once, so that the exclusive-or pen is its own undoing.
class Brush {
 public:
  Brush(std::uint32_t* pixels, int width, int height, std::uint32_t value, bool exclusiveOr)
      : pixels_(pixels), width_(width), height_(height), value_(value), exclusiveOr_(exclusiveOr) {}

  int width() const { return width_; }
  int height() const { return height_; }

  void paint(std::int64_t row, Run run) const {
    if (row < 0 || row >= height_) return;
    const std::int64_t first = std::max<std::int64_t>(run.first, 0);
    const std::int64_t last = std::min<std::int64_t>(run.last, width_ - 1);
    if (first > last) return;
    std::uint32_t* const begin = pixels_ + row * width_ + first;
    std::uint32_t* const end = begin + (last - first + 1);
    if (exclusiveOr_) {
      std::for_each(begin, end, [this](std::uint32_t& pixel) { pixel ^= value_; });
    } else {
      std::fill(begin, end, value_);
    }
  }

 private:
  std::uint32_t* pixels_;
  int width_;
  int height_;
  std::uint32_t value_;
  bool exclusiveOr_;
};

}  // namespace norvik::graphics
