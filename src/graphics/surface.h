#pragma once
// A grid of pixels that the tools draw on and read back.

#include "graphics/colour.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace norvik::graphics {

/// A pixel's place, from the top left corner; it may lie outside the surface.
struct Point {
  int x = 0;
  int y = 0;
  bool operator==(const Point&) const = default;
};

/// How a drawn pixel meets the one that is there.
enum class PenMode { copy, exclusiveOr };

/// Drawing is clipped to the surface, without anti-aliasing. A surface of no width or height takes
/// everything and shows nothing.
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

  /// The colour of a pixel; the paper colour outside the surface.
  Colour pixel(Point at) const;
  /// Sets a pixel, whatever the pen mode.
  void setPixel(Point at, Colour colour);

  PenMode penMode() const { return penMode_; }
  void setPenMode(PenMode mode) { penMode_ = mode; }

  /// A dot of the pen, `size` pixels wide.
  void dot(Point at, Colour colour, int size = 1);
  /// A line from pixel to pixel, both ends included, of a square pen of `size` pixels.
  void line(Point from, Point to, Colour colour, int size = 1);
  /// The outline of a box between two opposite corners.
  void box(Point corner, Point opposite, Colour colour, int size = 1);
  /// A polygon filled by the even-odd rule, its closed outline in the same colour. Of two corners
  /// it is a line, of one a dot.
  void polygon(std::span<const Point> corners, Colour colour);

  /// The pixels row by row from the top, each as 0xFFRRGGBB.
  std::span<const std::uint32_t> pixels() const { return pixels_; }
  /// Red, green and blue of each pixel, row by row from the top.
  std::string rgbBytes() const;

 private:
  int width_;
  int height_;
  Colour paper_;
  PenMode penMode_ = PenMode::copy;
  std::vector<std::uint32_t> pixels_;
};

}  // namespace norvik::graphics
