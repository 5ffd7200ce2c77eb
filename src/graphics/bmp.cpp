#include "graphics/bmp.h"

#include <cstddef>
#include <cstdint>

namespace norvik::graphics {

namespace {

constexpr std::size_t kFileHeader = 14;
constexpr std::size_t kPictureHeader = 40;
constexpr std::size_t kHeaders = kFileHeader + kPictureHeader;
constexpr std::size_t kBytesOfAPixel = 3;
constexpr std::size_t kRowUnit = 4;

/// A number, lowest byte first.
void append(std::string& bytes, std::size_t number, int size) {
  for (int i = 0; i < size; ++i) {
    bytes += static_cast<char>(number & 0xFFU);
    number >>= 8U;
  }
}

}  // namespace

std::string bmpHeaders(int width, int height) {
  constexpr int kShort = 2;
  constexpr int kLong = 4;
  constexpr std::size_t kPlanes = 1;
  constexpr std::size_t kBitsOfAPixel = 24;
  const std::size_t pixelBytes = bmpRowSize(width) * static_cast<std::size_t>(height);
  std::string bytes = "BM";
  append(bytes, kHeaders + pixelBytes, kLong);
  append(bytes, 0, kLong);  // reserved
  append(bytes, kHeaders, kLong);

  append(bytes, kPictureHeader, kLong);
  append(bytes, static_cast<std::size_t>(width), kLong);
  append(bytes, static_cast<std::size_t>(height), kLong);
  append(bytes, kPlanes, kShort);
  append(bytes, kBitsOfAPixel, kShort);
  append(bytes, 0, kLong);  // uncompressed
  append(bytes, pixelBytes, kLong);
  append(bytes, 0, kLong);  // pixels per metre, unknown
  append(bytes, 0, kLong);
  append(bytes, 0, kLong);  // colours of a table, none
  append(bytes, 0, kLong);
  return bytes;
}

std::size_t bmpRowSize(int width) {
  return (static_cast<std::size_t>(width) * kBytesOfAPixel + kRowUnit - 1) / kRowUnit * kRowUnit;
}

std::string bmpBytes(const Surface& surface) {
  const auto width = static_cast<std::size_t>(surface.width());
  const auto height = static_cast<std::size_t>(surface.height());
  const std::size_t row = bmpRowSize(surface.width());
  std::string bytes = bmpHeaders(surface.width(), surface.height());
  bytes.reserve(bytes.size() + row * height);
  const auto pixels = surface.pixels();
  for (std::size_t y = height; y-- > 0;) {
    for (const std::uint32_t pixel : pixels.subspan(y * width, width)) {
      append(bytes, pixel, kBytesOfAPixel);
    }
    bytes.append(row - width * kBytesOfAPixel, '\0');
  }
  return bytes;
}

}  // namespace norvik::graphics
