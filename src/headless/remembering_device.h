#pragma once
// The 3D view of a front end without a window.

#include "front/picture_box.h"
#include "graphics/device3d.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::headless {

/// Draws nothing; counts what is asked of it and remembers the set-up and the last frame. It takes
/// copies of the vertices only when a device with a memory of its own would, and counts these. A
/// frame like the one before it allocates nothing.
class RememberingDevice : public graphics::Device3D {
 public:
  struct Draw {
    graphics::Primitive primitive{};
    std::uint32_t format = 0;
    std::size_t vertices = 0;
    graphics::Material material;
    graphics::Matrix world;
    graphics::Matrix view;
    graphics::Matrix projection;
  };
  struct Counts {
    int clears = 0;
    int scenes = 0;
    int draws = 0;
    int blits = 0;
    int uploads = 0;
  };

  explicit RememberingDevice(const front::PictureBox& picture) : picture_(picture) {}

  /// Lets an operation of the set-up fail from now on: "createDevice".
  void fail(std::string operation) { failing_ = std::move(operation); }

  /// The operations of the set-up with their values, in their order: "setCooperativeLevel 8".
  const std::vector<std::string>& setUp() const { return setUp_; }
  /// The operations since the last clear, in their order, that included.
  const std::vector<std::string_view>& frame() const { return frame_; }
  /// What was drawn since the last clear.
  const std::vector<Draw>& draws() const { return draws_; }
  const Counts& counts() const { return counts_; }
  graphics::WindowRect lastBlit() const { return lastBlit_; }
  graphics::Colour clearColour() const { return clearColour_; }
  const graphics::Material& material() const { return material_; }
  const graphics::Matrix& transform(graphics::Transform transform) const;

  bool createDirectDraw() override;
  bool setCooperativeLevel(graphics::CooperativeLevel level) override;
  bool createPrimarySurface(std::uint32_t caps) override;
  graphics::WindowRect windowRect() override;
  bool createBackSurface(const graphics::SurfaceDescription& description) override;
  bool createClipper() override;
  bool createDirect3D() override;
  bool createDevice(std::string_view name) override;
  void setViewport(const graphics::Viewport& viewport) override;
  void setRenderState(graphics::RenderState state, std::uint32_t value) override;
  void setMaterial(const graphics::Material& diffuse) override;
  void setTransform(graphics::Transform transform, const graphics::Matrix& matrix) override;
  void clear(graphics::Colour colour, std::uint32_t flags) override;
  void beginScene() override;
  void drawPrimitive(graphics::Primitive primitive, std::uint32_t format,
                     graphics::VertexList list) override;
  void endScene() override;
  void blt(const graphics::WindowRect& to) override;

 private:
  bool step(std::string_view operation, const std::string& values = {});
  graphics::Matrix& slot(graphics::Transform transform);

  const front::PictureBox& picture_;
  std::string failing_;
  bool ready_ = false;
  std::vector<std::string> setUp_;
  std::vector<std::string_view> frame_;
  std::vector<Draw> draws_;
  Counts counts_;
  graphics::WindowRect lastBlit_;
  graphics::Colour clearColour_ = 0;
  graphics::Material material_;
  std::array<graphics::Matrix, 3> transforms_{
      graphics::identityMatrix(), graphics::identityMatrix(), graphics::identityMatrix()};
  std::vector<graphics::Vertex> copy_;
  std::optional<std::uint64_t> copied_;  ///< the revision that was copied
};

}  // namespace norvik::headless
