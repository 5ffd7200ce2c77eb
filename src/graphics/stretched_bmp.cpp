#include "graphics/stretched_bmp.h"

#include "graphics/bmp.h"
#include "text/line_writer.h"

#include <cstddef>
#include <vector>

namespace norvik::graphics {

namespace {

constexpr std::size_t kBytesOfAPixel = 3;

/// One row of the stretched picture as it stands in the file.
class Row {
 public:
  Row(const Surface& surface, int width)
      : surface_(surface), bytes_(bmpRowSize(width), '\0'), from_(static_cast<std::size_t>(width)) {
    for (std::size_t x = 0; x < from_.size(); ++x) {
      from_[x] = x * static_cast<std::size_t>(surface.width()) / from_.size();
    }
  }

  const std::string& at(std::size_t y) {
    const auto width = static_cast<std::size_t>(surface_.width());
    const auto pixels = surface_.pixels().subspan(y * width, width);
    for (std::size_t x = 0; x < from_.size(); ++x) {
      const std::uint32_t pixel = pixels[from_[x]];
      for (std::size_t part = 0; part < kBytesOfAPixel; ++part) {
        bytes_[x * kBytesOfAPixel + part] = static_cast<char>(pixel >> 8U * part & 0xFFU);
      }
    }
    return bytes_;
  }

 private:
  const Surface& surface_;
  std::string bytes_;
  std::vector<std::size_t> from_;  ///< the column of the surface that each pixel takes
};

void write(text::Disk& disk, const Surface& surface, Point size, const std::string& path) {
  text::LineWriter file(disk, path);
  file.bytes(bmpHeaders(size.x, size.y));
  Row row(surface, size.x);
  const auto height = static_cast<std::size_t>(size.y);
  for (std::size_t y = height; y-- > 0;) {
    file.bytes(row.at(y * static_cast<std::size_t>(surface.height()) / height));
  }
  file.close();
}

}  // namespace

void saveStretchedBmp(text::Disk& disk, const Surface& surface, Point size, const std::string& path,
                      const std::string& scratch) {
  const auto good = [](int pixels) { return pixels > 0 && pixels <= kMostPixels; };
  if (!good(size.x) || !good(size.y) || surface.pixels().empty()) {
    throw text::FileError(text::ErrorNumber::pictureNotMade);
  }
  try {
    write(disk, surface, size, scratch);
    disk.replace(scratch, path);
  } catch (const text::FileError&) {
    text::ignoringErrors([&] { disk.remove(scratch); });
    throw;
  }
}

std::uint64_t stretchedBmpBytes(Point size) {
  return bmpHeaders(1, 1).size() +
         std::uint64_t{bmpRowSize(size.x)} * static_cast<std::uint64_t>(size.y);
}

}  // namespace norvik::graphics
