#include "graphics/surface.h"

#include <algorithm>

namespace norvik::graphics {

namespace {

std::uint32_t stored(Colour colour) {
  return 0xFF000000U | redOf(colour) << 16U | greenOf(colour) << 8U | blueOf(colour);
}

}  // namespace

Surface::Surface(int width, int height, Colour paper) : width_(0), height_(0), paper_(paper) {
  resize(width, height);
}

void Surface::resize(int width, int height) {
  width_ = std::max(width, 0);
  height_ = std::max(height, 0);
  pixels_.resize(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_));
  clear();
}

void Surface::clear() {
  std::fill(pixels_.begin(), pixels_.end(), stored(paper_));
}

}  // namespace norvik::graphics
