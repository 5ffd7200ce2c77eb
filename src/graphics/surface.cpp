#include "graphics/surface.h"

#include "graphics/lines.h"
#include "graphics/polygon.h"

#include <algorithm>

namespace norvik::graphics {

namespace {

std::uint32_t stored(Colour colour) {
  return 0xFF000000U | redOf(colour) << 16U | greenOf(colour) << 8U | blueOf(colour);
}

Colour colourIn(std::uint32_t pixel) {
  return colourOf(pixel >> 16U & 0xFFU, pixel >> 8U & 0xFFU, pixel & 0xFFU);
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

std::size_t Surface::indexOf(Point at) const {
  return static_cast<std::size_t>(at.y) * static_cast<std::size_t>(width_) +
         static_cast<std::size_t>(at.x);
}

Colour Surface::pixel(Point at) const {
  return holds(at) ? colourIn(pixels_[indexOf(at)]) : paper_;
}

void Surface::setPixel(Point at, Colour colour) {
  if (holds(at)) pixels_[indexOf(at)] = stored(colour);
}

Brush Surface::brush(Colour colour) {
  const bool exclusiveOr = penMode_ == PenMode::exclusiveOr;
  // The pixels stay opaque.
  const std::uint32_t value = exclusiveOr ? stored(colour) & 0xFFFFFFU : stored(colour);
  return {pixels_.data(), width_, height_, value, exclusiveOr};
}

void Surface::dot(Point at, Colour colour, int size) {
  paintDot(brush(colour), at, size);
}

void Surface::line(Point from, Point to, Colour colour, int size) {
  paintLine(brush(colour), from, to, size);
}

void Surface::box(Point corner, Point opposite, Colour colour, int size) {
  paintBox(brush(colour), corner, opposite, size);
}

void Surface::polygon(std::span<const Point> corners, Colour colour) {
  paintPolygon(brush(colour), corners);
}

std::string Surface::rgbBytes() const {
  constexpr std::size_t kBytes = 3;
  std::string bytes;
  bytes.reserve(pixels_.size() * kBytes);
  for (const std::uint32_t pixel : pixels_) {
    bytes += static_cast<char>(pixel >> 16U & 0xFFU);
    bytes += static_cast<char>(pixel >> 8U & 0xFFU);
    bytes += static_cast<char>(pixel & 0xFFU);
  }
  return bytes;
}

}  // namespace norvik::graphics
