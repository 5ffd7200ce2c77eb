#include "graphics/bmp_reader.h"

#include <cstddef>
#include <cstdint>

namespace norvik::graphics {

namespace {

constexpr std::size_t kFileHeader = 14;
constexpr std::size_t kPictureHeader = 40;
constexpr std::size_t kBytesOfAPixel = 3;
constexpr std::size_t kRowUnit = 4;

std::uint32_t byteAt(std::string_view bytes, std::size_t at) {
  return static_cast<unsigned char>(bytes[at]);
}
/// Numbers, lowest byte first.
std::uint32_t shortAt(std::string_view bytes, std::size_t at) {
  return byteAt(bytes, at) | byteAt(bytes, at + 1) << 8U;
}
std::uint32_t longAt(std::string_view bytes, std::size_t at) {
  return shortAt(bytes, at) | shortAt(bytes, at + 2) << 16U;
}
/// One with a sign.
std::int64_t signedAt(std::string_view bytes, std::size_t at) {
  return static_cast<std::int32_t>(longAt(bytes, at));
}

/// What the headers say of the pixels.
struct Layout {
  int width = 0;
  int height = 0;
  bool fromTheTop = false;
  std::uint64_t first = 0;  ///< where the first pixel's bytes are
  std::uint64_t row = 0;    ///< bytes from one row to the next
};

std::optional<Layout> readHeaders(std::string_view bytes) {
  constexpr std::uint32_t kBitsOfAPixel = 24;
  constexpr std::int64_t kMostSide = INT32_MAX;
  if (bytes.size() < kFileHeader + kPictureHeader || !bytes.starts_with("BM")) return std::nullopt;
  const std::uint64_t header = longAt(bytes, 14);
  const bool known = header >= kPictureHeader && shortAt(bytes, 28) == kBitsOfAPixel &&
                     longAt(bytes, 30) == 0;  // uncompressed
  if (!known) return std::nullopt;
  const std::int64_t width = signedAt(bytes, 18);
  const std::int64_t height = signedAt(bytes, 22);
  const std::int64_t rows = height < 0 ? -height : height;
  if (width <= 0 || rows == 0 || rows > kMostSide) return std::nullopt;

  Layout layout{static_cast<int>(width), static_cast<int>(rows), height < 0, longAt(bytes, 10), 0};
  const std::uint64_t pixels = static_cast<std::uint64_t>(width) * kBytesOfAPixel;
  layout.row = (pixels + kRowUnit - 1) / kRowUnit * kRowUnit;
  // The bytes that fill up the last row may be missing.
  const std::uint64_t end =
      layout.first + layout.row * (static_cast<std::uint64_t>(rows) - 1) + pixels;
  if (layout.first < kFileHeader + header || end > bytes.size()) return std::nullopt;
  return layout;
}

}  // namespace

std::optional<Surface> bmpSurface(std::string_view bytes) {
  const auto layout = readHeaders(bytes);
  if (!layout) return std::nullopt;
  Surface surface(layout->width, layout->height);
  for (int y = 0; y < layout->height; ++y) {
    const auto row = static_cast<std::uint64_t>(layout->fromTheTop ? y : layout->height - 1 - y);
    auto at = static_cast<std::size_t>(layout->first + row * layout->row);
    for (int x = 0; x < layout->width; ++x, at += kBytesOfAPixel) {
      surface.setPixel({x, y},
                       colourOf(byteAt(bytes, at + 2), byteAt(bytes, at + 1), byteAt(bytes, at)));
    }
  }
  return surface;
}

}  // namespace norvik::graphics
