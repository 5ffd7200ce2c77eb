#pragma once
// A surface in another size, row by row.

#include "graphics/surface.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace norvik::graphics {

/// The rows of a surface that is stretched to a size: a pixel is that of the surface which lies at
/// its place. Both have at least one pixel; the surface must outlive this.
class StretchedRows {
 public:
  StretchedRows(const Surface& surface, Point size);

  /// The pixels of a row, from the top, each as 0xFFRRGGBB. Good until the next call.
  std::span<const std::uint32_t> row(int number);

 private:
  const Surface& surface_;
  std::size_t height_;
  std::vector<std::size_t> from_;  ///< the column of the surface that each pixel takes
  std::vector<std::uint32_t> row_;
};

}  // namespace norvik::graphics
