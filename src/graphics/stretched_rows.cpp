#include "graphics/stretched_rows.h"

namespace norvik::graphics {

StretchedRows::StretchedRows(const Surface& surface, Point size)
    : surface_(surface),
      height_(static_cast<std::size_t>(size.y)),
      from_(static_cast<std::size_t>(size.x)),
      row_(from_.size()) {
  for (std::size_t x = 0; x < from_.size(); ++x) {
    from_[x] = x * static_cast<std::size_t>(surface.width()) / from_.size();
  }
}

std::span<const std::uint32_t> StretchedRows::row(int number) {
  const auto width = static_cast<std::size_t>(surface_.width());
  const auto y =
      static_cast<std::size_t>(number) * static_cast<std::size_t>(surface_.height()) / height_;
  const auto pixels = surface_.pixels().subspan(y * width, width);
  for (std::size_t x = 0; x < from_.size(); ++x) row_[x] = pixels[from_[x]];
  return row_;
}

}  // namespace norvik::graphics
