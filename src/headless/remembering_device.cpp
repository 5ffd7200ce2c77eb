#include "headless/remembering_device.h"

#include <cstdio>

namespace norvik::headless {

namespace {

using graphics::Transform;

std::string hex(std::uint32_t value) {
  std::array<char, 12> digits{};
  std::snprintf(digits.data(), digits.size(), "0x%x", value);
  return digits.data();
}

std::size_t indexOf(Transform transform) {
  return static_cast<std::size_t>(transform) - 1;
}

}  // namespace

bool RememberingDevice::step(std::string_view operation, const std::string& values) {
  setUp_.push_back(std::string{operation} + (values.empty() ? "" : " " + values));
  return operation != failing_;
}

graphics::Matrix& RememberingDevice::slot(Transform transform) {
  return transforms_[indexOf(transform)];
}

const graphics::Matrix& RememberingDevice::transform(Transform transform) const {
  return transforms_[indexOf(transform)];
}

bool RememberingDevice::createDirectDraw() {
  ready_ = false;
  setUp_.clear();
  return step("createDirectDraw");
}

bool RememberingDevice::setCooperativeLevel(graphics::CooperativeLevel level) {
  return step("setCooperativeLevel", std::to_string(static_cast<std::uint32_t>(level)));
}

bool RememberingDevice::createPrimarySurface(std::uint32_t caps) {
  return step("createPrimarySurface", hex(caps));
}

graphics::WindowRect RememberingDevice::windowRect() {
  if (ready_) frame_.emplace_back("windowRect");
  const front::Box& box = picture_.box();
  const auto left = static_cast<int>(box.left);
  const auto top = static_cast<int>(box.top);
  return {left, top, left + static_cast<int>(box.width), top + static_cast<int>(box.height)};
}

bool RememberingDevice::createBackSurface(const graphics::SurfaceDescription& description) {
  return step("createBackSurface", std::to_string(description.flags) + " " + hex(description.caps) +
                                       " " + std::to_string(description.width) + "x" +
                                       std::to_string(description.height));
}

bool RememberingDevice::createClipper() {
  return step("createClipper");
}

bool RememberingDevice::createDirect3D() {
  return step("createDirect3D");
}

bool RememberingDevice::createDevice(std::string_view name) {
  ready_ = step("createDevice", std::string{name});
  return ready_;
}

void RememberingDevice::setViewport(const graphics::Viewport& viewport) {
  const auto whole = [](float value) { return std::to_string(static_cast<int>(value)); };
  step("setViewport", std::to_string(viewport.x) + " " + std::to_string(viewport.y) + " " +
                          std::to_string(viewport.width) + " " + std::to_string(viewport.height) +
                          " " + whole(viewport.nearest) + " " + whole(viewport.farthest));
}

void RememberingDevice::setRenderState(graphics::RenderState state, std::uint32_t value) {
  step("setRenderState", std::to_string(static_cast<std::uint32_t>(state)) + " " + hex(value));
}

void RememberingDevice::setMaterial(const graphics::Material& diffuse) {
  material_ = diffuse;
}

void RememberingDevice::setTransform(Transform transform, const graphics::Matrix& matrix) {
  if (ready_) frame_.emplace_back("setTransform");
  slot(transform) = matrix;
}

void RememberingDevice::clear(graphics::Colour colour, std::uint32_t) {
  if (!ready_) return;
  frame_.clear();
  draws_.clear();
  frame_.emplace_back("clear");
  clearColour_ = colour;
  ++counts_.clears;
}

void RememberingDevice::beginScene() {
  if (!ready_) return;
  frame_.emplace_back("beginScene");
  ++counts_.scenes;
}

void RememberingDevice::drawPrimitive(graphics::Primitive primitive, std::uint32_t format,
                                      graphics::VertexList list) {
  if (!ready_) return;
  if (copied_ != list.revision) {
    copy_.assign(list.vertices.begin(), list.vertices.end());
    copied_ = list.revision;
    ++counts_.uploads;
  }
  frame_.emplace_back("drawPrimitive");
  draws_.push_back({primitive, format, list.vertices.size(), material_, transform(Transform::world),
                    transform(Transform::view), transform(Transform::projection)});
  ++counts_.draws;
}

void RememberingDevice::endScene() {
  if (ready_) frame_.emplace_back("endScene");
}

void RememberingDevice::blt(const graphics::WindowRect& to) {
  if (!ready_) return;
  frame_.emplace_back("blt");
  lastBlit_ = to;
  ++counts_.blits;
}

}  // namespace norvik::headless
