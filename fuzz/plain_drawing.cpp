#include "plain_drawing.h"

#include <algorithm>
#include <cstdint>

namespace norvik::fuzz {

namespace {

using graphics::Colour;
using graphics::Point;

/// Wide enough for the products of any two distances.
__extension__ using Wide = __int128;

struct Place {
  Wide x;
  Wide y;
};

Place placeOf(Point point) {
  return {point.x, point.y};
}

Wide size(Wide number) {
  return number < 0 ? -number : number;
}

/// Whether `along` lies from one end to the other and `aside` is the whole number nearest to where
/// the line is there, halves upwards.
bool nearest(Wide along, Wide aside, Place from, Place to) {
  if (along < std::min(from.x, to.x) || along > std::max(from.x, to.x)) return false;
  const Wide length = to.x - from.x;
  if (length < 0) return nearest(along, aside, to, from);
  if (length == 0) return aside == from.y;
  // aside <= where + 1/2 < aside + 1, all times twice the length.
  const Wide where = 2 * ((along - from.x) * (to.y - from.y) + from.y * length) + length;
  return 2 * aside * length <= where && where < 2 * (aside + 1) * length;
}

bool onLine(Place pixel, Place from, Place to) {
  if (size(to.x - from.x) >= size(to.y - from.y)) return nearest(pixel.x, pixel.y, from, to);
  return nearest(pixel.y, pixel.x, {from.y, from.x}, {to.y, to.x});
}

bool penOnLine(Place pixel, Place from, Place to, int pen) {
  const int back = std::max(pen, 1) / 2;
  const int ahead = std::max(pen, 1) - 1 - back;
  for (int dx = -ahead; dx <= back; ++dx) {
    for (int dy = -ahead; dy <= back; ++dy) {
      if (onLine({pixel.x + dx, pixel.y + dy}, from, to)) return true;
    }
  }
  return false;
}

/// Whether a side goes through the pixel's row to the left of its centre.
bool crossesLeft(Place pixel, Place from, Place to) {
  if (from.y > to.y) std::swap(from, to);
  if (pixel.y < from.y || pixel.y >= to.y) return false;
  return (pixel.y - from.y) * (to.x - from.x) < (pixel.x - from.x) * (to.y - from.y);
}

bool inPolygon(Place pixel, std::span<const Point> corners) {
  bool inside = false;
  for (std::size_t i = 0; i < corners.size(); ++i) {
    const Place from = placeOf(corners[i]);
    const Place to = placeOf(corners[(i + 1) % corners.size()]);
    if (onLine(pixel, from, to)) return true;
    if (crossesLeft(pixel, from, to)) inside = !inside;
  }
  return inside;
}

}  // namespace

PlainDrawing::PlainDrawing(int width, int height, Colour paper)
    : width_(width), height_(height), paper_(paper) {
  pixels_.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), paper);
}

template <typename Belongs>
void PlainDrawing::draw(Colour colour, Belongs belongs) {
  auto pixel = pixels_.begin();
  for (int y = 0; y < height_; ++y) {
    for (int x = 0; x < width_; ++x, ++pixel) {
      if (!belongs(Place{x, y})) continue;
      *pixel = mode_ == graphics::PenMode::copy ? colour : *pixel ^ colour;
    }
  }
}

void PlainDrawing::clear() {
  std::fill(pixels_.begin(), pixels_.end(), paper_);
}

void PlainDrawing::setPixel(Point at, Colour colour) {
  if (at.x < 0 || at.x >= width_ || at.y < 0 || at.y >= height_) return;
  pixels_[static_cast<std::size_t>(at.y) * static_cast<std::size_t>(width_) +
          static_cast<std::size_t>(at.x)] = colour;
}

void PlainDrawing::dot(Point at, Colour colour, int size) {
  line(at, at, colour, size);
}

void PlainDrawing::line(Point from, Point to, Colour colour, int size) {
  draw(colour, [&](Place pixel) { return penOnLine(pixel, placeOf(from), placeOf(to), size); });
}

void PlainDrawing::box(Point corner, Point opposite, Colour colour, int size) {
  const Place a = placeOf(corner);
  const Place c = placeOf(opposite);
  const Place b{c.x, a.y};
  const Place d{a.x, c.y};
  draw(colour, [&](Place pixel) {
    return penOnLine(pixel, a, b, size) || penOnLine(pixel, b, c, size) ||
           penOnLine(pixel, c, d, size) || penOnLine(pixel, d, a, size);
  });
}

void PlainDrawing::polygon(std::span<const Point> corners, Colour colour) {
  draw(colour, [&](Place pixel) { return inPolygon(pixel, corners); });
}

}  // namespace norvik::fuzz
