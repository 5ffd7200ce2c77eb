#include "graphics/crc32.h"

#include <array>
#include <cstddef>

namespace norvik::graphics {

namespace {

constexpr std::size_t kValuesOfAByte = 256;

constexpr std::array<std::uint32_t, kValuesOfAByte> makeRemainders() {
  constexpr std::uint32_t kPolynomial = 0xEDB88320U;
  constexpr int kBitsOfAByte = 8;
  std::array<std::uint32_t, kValuesOfAByte> remainders{};
  for (std::uint32_t byte = 0; byte < remainders.size(); ++byte) {
    std::uint32_t rest = byte;
    for (int bit = 0; bit < kBitsOfAByte; ++bit) {
      rest = (rest & 1U) != 0 ? rest >> 1U ^ kPolynomial : rest >> 1U;
    }
    remainders[byte] = rest;
  }
  return remainders;
}

constexpr auto kRemainders = makeRemainders();

}  // namespace

std::uint32_t crc32(std::string_view bytes) {
  std::uint32_t rest = 0xFFFFFFFFU;
  for (const char c : bytes) {
    const auto byte = static_cast<std::uint8_t>(c);
    rest = kRemainders[(rest ^ byte) & 0xFFU] ^ rest >> 8U;
  }
  return ~rest;
}

}  // namespace norvik::graphics
