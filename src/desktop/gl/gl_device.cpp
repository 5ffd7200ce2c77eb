#include "desktop/gl/gl_device.h"

#include "desktop/gl/gl_support.h"

#include <algorithm>

namespace norvik::desktop {

bool GlDevice::createDirectDraw() {
  ready_ = false;
  return glSupport().present;
}

/// In the screen's own pixels. The widget draws at the size that it has at the moment: that is what
/// a back surface, stretched to the window, comes to.
graphics::WindowRect GlDevice::windowRect() {
  if (!widget_) {
    const front::Box& box = picture_.box();
    return {0, 0, static_cast<int>(box.width), static_cast<int>(box.height)};
  }
  const QPoint corner = widget_->mapToGlobal(QPoint{0, 0});
  return {corner.x(), corner.y(), corner.x() + widget_->width(), corner.y() + widget_->height()};
}

bool GlDevice::createDevice(std::string_view) {
  ready_ = true;
  return true;
}

void GlDevice::setTransform(graphics::Transform transform, const graphics::Matrix& matrix) {
  transforms_[static_cast<std::size_t>(transform) - 1] = matrix;
}

void GlDevice::clear(graphics::Colour colour, std::uint32_t) {
  back_.ground = colour;
  back_.count = 0;
}

void GlDevice::drawPrimitive(graphics::Primitive primitive, std::uint32_t,
                             graphics::VertexList list) {
  if (!ready_ || back_.count == back_.draws.size()) return;
  if (taken_ != list.revision) {
    corners_.resize(list.vertices.size());
    std::transform(list.vertices.begin(), list.vertices.end(), corners_.begin(),
                   [](const graphics::Vertex& vertex) {
                     return Corner{vertex.x, vertex.y, vertex.z};
                   });
    taken_ = list.revision;
    ++meshes_;
  }
  back_.draws[back_.count++] = {primitive, material_, transforms_[0], transforms_[1],
                                transforms_[2]};
}

void GlDevice::blt(const graphics::WindowRect&) {
  shown_ = back_;
  if (widget_) widget_->update();
}

}  // namespace norvik::desktop
