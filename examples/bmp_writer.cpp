#include "bmp_writer.h"

#include "output_file.h"

#include <string>

namespace norvik::examples {

namespace {

void append(std::string& bytes, std::uint32_t number, int count) {
  for (int i = 0; i < count; ++i, number >>= 8U) bytes += static_cast<char>(number & 0xFFU);
}

std::string header(std::uint32_t pixels) {
  constexpr std::uint32_t headerSize = 54;
  const std::uint32_t imageSize = pixels * pixels * 3;
  std::string bytes = "BM";
  append(bytes, headerSize + imageSize, 4);
  append(bytes, 0, 4);
  append(bytes, headerSize, 4);
  append(bytes, 40, 4);
  append(bytes, pixels, 4);
  append(bytes, pixels, 4);
  append(bytes, 1, 2);
  append(bytes, 24, 2);
  append(bytes, 0, 4);
  append(bytes, imageSize, 4);
  append(bytes, 2835, 4);
  append(bytes, 2835, 4);
  append(bytes, 0, 4);
  append(bytes, 0, 4);
  return bytes;
}

Colour darker(const Colour& colour) {
  const auto shade = [](std::uint8_t part) { return static_cast<std::uint8_t>(part * 3 / 4); };
  return {shade(colour.red), shade(colour.green), shade(colour.blue)};
}

}  // namespace

void writeBmp(const std::filesystem::path& path, const Weave& weave) {
  OutputFile file(path);
  std::string bytes = header(weave.pixels);
  const std::uint32_t squareSize = weave.pixels / weave.squares;
  for (std::uint32_t y = 0; y < weave.pixels; ++y) {
    for (std::uint32_t x = 0; x < weave.pixels; ++x) {
      const bool isEven = (x / squareSize + y / squareSize) % 2 == 0;
      const bool isGrid = x % squareSize == 0 || y % squareSize == 0;
      const Colour square = isEven ? weave.first : weave.second;
      const Colour colour = isGrid ? darker(square) : square;
      append(bytes, colour.blue, 1);
      append(bytes, colour.green, 1);
      append(bytes, colour.red, 1);
    }
  }
  file.put(bytes);
  file.finish();
}

}  // namespace norvik::examples
