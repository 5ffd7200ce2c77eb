#include "figure/colour_text.h"

#include "text/columns.h"
#include "text/number_text.h"

namespace norvik::figure {

namespace {

unsigned number(std::string_view text) {
  return static_cast<unsigned>(text::value(text));
}

}  // namespace

std::string LongToHexS(graphics::Colour colour) {
  return std::to_string(graphics::redOf(colour)) + "G" + std::to_string(graphics::greenOf(colour)) +
         "B" + std::to_string(graphics::blueOf(colour));
}

std::string fileValue(unsigned value) {
  // 1/256 has eight decimals, so that none is lost.
  constexpr unsigned kStep = 390625;
  constexpr std::size_t kDecimals = 8;
  if (value == 0) return " 0";
  std::string decimals = std::to_string(value * kStep);
  decimals.insert(0, kDecimals - decimals.size(), '0');
  decimals.erase(decimals.find_last_not_of('0') + 1);
  return " ." + decimals;
}

std::array<std::string, 3> fileValues(graphics::Colour colour) {
  const std::string values = LongToHexS(colour);
  const auto behindRed = text::after(values, "G");
  return {fileValue(number(text::before(values, "G"))),
          fileValue(number(text::before(behindRed, "B"))),
          fileValue(number(text::after(behindRed, "B")))};
}

}  // namespace norvik::figure
