#pragma once
// Colours as the forms keep them: one number, in the byte order blue, green, red.

#include <array>
#include <cstddef>
#include <cstdint>

namespace norvik::graphics {

using Colour = std::uint32_t;

constexpr Colour colourOf(unsigned red, unsigned green, unsigned blue) {
  return red | green << 8U | blue << 16U;
}
constexpr unsigned redOf(Colour colour) {
  return colour & 0xFFU;
}
constexpr unsigned greenOf(Colour colour) {
  return colour >> 8U & 0xFFU;
}
constexpr unsigned blueOf(Colour colour) {
  return colour >> 16U & 0xFFU;
}

constexpr Colour kBlack = 0;
constexpr Colour kWhite = 0xFFFFFF;

/// The sixteen colours of the console, by number.
constexpr std::array<Colour, 16> kPalette{
    0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080, 0x008080, 0xC0C0C0,
    0x808080, 0xFF0000, 0x00FF00, 0xFFFF00, 0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF};
constexpr Colour paletteColour(std::size_t number) {
  return kPalette[number % kPalette.size()];
}

}  // namespace norvik::graphics
