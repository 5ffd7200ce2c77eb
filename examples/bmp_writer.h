#pragma once

#include <cstdint>
#include <filesystem>

namespace norvik::examples {

struct Colour {
  std::uint8_t red;
  std::uint8_t green;
  std::uint8_t blue;
};

// A texture to see a mesh's mapping by: squares of two colours, with a darker grid between them.
struct Weave {
  std::uint32_t pixels;   // width and height, a multiple of 4
  std::uint32_t squares;  // in each direction
  Colour first;
  Colour second;
};

// Writes it as a 24-bit BMP.
void writeBmp(const std::filesystem::path& path, const Weave& weave);

}  // namespace norvik::examples
