#include "graphics/stretched_bmp.h"

#include "graphics/bmp.h"
#include "graphics/stretched_rows.h"
#include "text/line_writer.h"

#include <cstddef>
#include <span>

namespace norvik::graphics {

namespace {

constexpr std::size_t kBytesOfAPixel = 3;

/// Puts a row's pixels as they stand in the file over the bytes of another.
void put(std::span<const std::uint32_t> pixels, std::string& bytes) {
  for (std::size_t x = 0; x < pixels.size(); ++x) {
    for (std::size_t part = 0; part < kBytesOfAPixel; ++part) {
      bytes[x * kBytesOfAPixel + part] = static_cast<char>(pixels[x] >> 8U * part & 0xFFU);
    }
  }
}

void write(text::Disk& disk, const Surface& surface, Point size, const std::string& path) {
  text::LineWriter file(disk, path);
  file.bytes(bmpHeaders(size.x, size.y));
  StretchedRows rows(surface, size);
  std::string bytes(bmpRowSize(size.x), '\0');
  for (int y = size.y; y-- > 0;) {
    put(rows.row(y), bytes);
    file.bytes(bytes);
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
