#include "obj/surgery/lop_colours.h"

#include "mesh/obj_number.h"

#include <algorithm>
#include <string>

namespace norvik::obj {

LopCorners sorted(graphics::Point one, graphics::Point other) {
  return {std::min(one.x, other.x), std::min(one.y, other.y), std::max(one.x, other.x),
          std::max(one.y, other.y)};
}

void LopColours::gather(const graphics::Surface& picture, const LopCorners& box) {
  const int right = std::min(box.right, picture.width() - 1);
  const int bottom = std::min(box.bottom, picture.height() - 1);
  front::Colour last = front::kWhite;
  for (int x = std::max(box.left, 0); x <= right; ++x) {
    for (int y = std::max(box.top, 0); y <= bottom; ++y) {
      const front::Colour colour = picture.pixel({x, y});
      if (colour == last || colour == front::kWhite || colour == kGoneRed) continue;
      last = colour;
      if (!holds(colour)) list_.add(std::to_string(colour));
    }
  }
}

bool LopColours::holds(front::Colour colour) const {
  constexpr double kFrom = 0.98;
  constexpr double kTo = 1.02;
  const double number = colour;
  return std::any_of(list_.items().begin(), list_.items().end(), [number](const auto& entry) {
    const double listed = leadingNumber(entry);
    return number >= listed * kFrom && number <= listed * kTo;
  });
}

}  // namespace norvik::obj
