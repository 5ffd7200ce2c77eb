#pragma once
// The 3D view of a picture, for the window.

#include "front/picture_box.h"
#include "graphics/device3d.h"

#include <QPointer>
#include <QWidget>

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace norvik::desktop {

/// What one frame draws. It holds no vertices: these stay where the view has put them.
struct GlFrame {
  struct Draw {
    graphics::Primitive primitive{};
    graphics::Material material;
    graphics::Matrix world;
    graphics::Matrix view;
    graphics::Matrix projection;
  };
  graphics::Colour ground = graphics::kWhite;
  std::array<Draw, 4> draws;
  std::size_t count = 0;
};

/// Keeps the last frame that was brought on view, so that the widget can paint it whenever it has
/// to, and the mesh, of which the widget has a copy in the memory of the graphics card. Nothing is
/// copied while the mesh stays the same.
class GlDevice : public graphics::Device3D {
 public:
  struct Corner {
    float x = 0;
    float y = 0;
    float z = 0;
  };

  explicit GlDevice(const front::PictureBox& picture) : picture_(picture) {}

  /// The widget that paints the frames, once there is one.
  void setWidget(QWidget& widget) { widget_ = &widget; }

  const GlFrame& shown() const { return shown_; }
  const std::vector<Corner>& corners() const { return corners_; }
  /// Rises when the corners change.
  std::uint64_t meshes() const { return meshes_; }

  bool createDirectDraw() override;
  bool setCooperativeLevel(graphics::CooperativeLevel) override { return true; }
  bool createPrimarySurface(std::uint32_t) override { return true; }
  graphics::WindowRect windowRect() override;
  bool createBackSurface(const graphics::SurfaceDescription&) override { return true; }
  bool createClipper() override { return true; }
  bool createDirect3D() override { return true; }
  bool createDevice(std::string_view) override;
  void setViewport(const graphics::Viewport&) override {}
  void setRenderState(graphics::RenderState, std::uint32_t) override {}
  void setMaterial(const graphics::Material& diffuse) override { material_ = diffuse; }
  void setTransform(graphics::Transform transform, const graphics::Matrix& matrix) override;
  void clear(graphics::Colour colour, std::uint32_t flags) override;
  void beginScene() override {}
  void drawPrimitive(graphics::Primitive primitive, std::uint32_t format,
                     graphics::VertexList list) override;
  void endScene() override {}
  void blt(const graphics::WindowRect& to) override;

 private:
  const front::PictureBox& picture_;
  QPointer<QWidget> widget_;
  bool ready_ = false;
  graphics::Material material_;
  std::array<graphics::Matrix, 3> transforms_{
      graphics::identityMatrix(), graphics::identityMatrix(), graphics::identityMatrix()};
  GlFrame back_;
  GlFrame shown_;
  std::vector<Corner> corners_;
  std::optional<std::uint64_t> taken_;  ///< the revision that the corners come from
  std::uint64_t meshes_ = 0;
};

}  // namespace norvik::desktop
