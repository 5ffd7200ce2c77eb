#pragma once
// A grid of pixels that the tools draw on and read back.

#include "graphics/brush.h"
#include "graphics/colour.h"
#include "graphics/point.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace norvik::graphics {

/// How a drawn pixel meets the one that is there.
enum class PenMode { copy, exclusiveOr };

/// Drawing is clipped to the surface, without anti-aliasing, and takes any coordinates. A drawing
/// changes each of its pixels once: with the exclusive-or pen the same drawing again undoes it. A
/// surface of no width or height takes everything and shows nothing.
class Surface {
 public:
  Surface(int width, int height, Colour paper = kWhite);

  int width() const { return width_; }
  int height() const { return height_; }
  /// Takes another size and is cleared.
  void resize(int width, int height);

  Colour paper() const { return paper_; }
  /// Fills the whole surface with the paper colour.
  void clear();

  bool holds(Point at) const { return at.x >= 0 && at.x < width_ && at.y >= 0 && at.y < height_; }
  /// The colour of a pixel; the paper colour outside the surface.
  Colour pixel(Point at) const;
  /// Sets a pixel, whatever the pen mode.
  void setPixel(Point at, Colour colour);

  PenMode penMode() const { return penMode_; }
  void setPenMode(PenMode mode) { penMode_ = mode; }

  // The pen is a square of `size` pixels, at least one, around its place. One of an even size
  // reaches a pixel further up and to the left.

  /// The pen in one place.
  void dot(Point at, Colour colour, int size = 1);
  /// The pen along a line, both ends included: a pixel for each step along the longer axis, the
  /// nearest one; of two equally near, the right or lower one. It is the same from either end.
  void line(Point from, Point to, Colour colour, int size = 1);
  /// The pen along the sides of a box between two opposite corners.
  void box(Point corner, Point opposite, Colour colour, int size = 1);
  /// A polygon: the lines between its corners, also from the last to the first, and all pixels
  /// whose centre they go around by the even-odd rule. Corners are centres of pixels. Of two
  /// corners it is a line, of one a dot, of none nothing.
  void polygon(std::span<const Point> corners, Colour colour);

  /// The pixels row by row from the top, each as 0xFFRRGGBB.
  std::span<const std::uint32_t> pixels() const { return pixels_; }
  /// Red, green and blue of each pixel, row by row from the top.
  std::string rgbBytes() const;

 private:
  Brush brush(Colour colour);
  std::size_t indexOf(Point at) const;

  int width_;
  int height_;
  Colour paper_;
  PenMode penMode_ = PenMode::copy;
  std::vector<std::uint32_t> pixels_;
};

}  // namespace norvik::graphics
