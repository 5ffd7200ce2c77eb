#pragma once
// Drawing in its plainest form: each pixel of a surface is asked whether it belongs to what is
// drawn.

#include "graphics/surface.h"

#include <span>
#include <vector>

namespace norvik::fuzz {

class PlainDrawing {
 public:
  PlainDrawing(int width, int height, graphics::Colour paper);

  void setPenMode(graphics::PenMode mode) { mode_ = mode; }
  void clear();
  void setPixel(graphics::Point at, graphics::Colour colour);
  void dot(graphics::Point at, graphics::Colour colour, int size);
  void line(graphics::Point from, graphics::Point to, graphics::Colour colour, int size);
  void box(graphics::Point corner, graphics::Point opposite, graphics::Colour colour, int size);
  void polygon(std::span<const graphics::Point> corners, graphics::Colour colour);

  /// The colours row by row from the top.
  const std::vector<graphics::Colour>& pixels() const { return pixels_; }

 private:
  template <typename Belongs>
  void draw(graphics::Colour colour, Belongs belongs);

  int width_;
  int height_;
  graphics::Colour paper_;
  graphics::PenMode mode_ = graphics::PenMode::copy;
  std::vector<graphics::Colour> pixels_;
};

}  // namespace norvik::fuzz
