#pragma once
// What the 3D view asks of the platform, with the values that it asks for.

#include "graphics/colour.h"
#include "graphics/matrix.h"
#include "graphics/vertex.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace norvik::graphics {

/// A rectangle of the screen, in pixels; its right and lower edges lie outside it.
struct WindowRect {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
  int width() const { return right - left; }
  int height() const { return bottom - top; }
  bool operator==(const WindowRect&) const = default;
};

/// How a program shares the screen: in a window of its own.
enum class CooperativeLevel : std::uint32_t { normal = 8 };

namespace surface_caps {
constexpr std::uint32_t kPrimary = 0x200;
constexpr std::uint32_t kOffscreen3D = 0x2040;
}  // namespace surface_caps

/// Caps, height and width of a surface are given.
constexpr std::uint32_t kSurfaceFlags = 7;

struct SurfaceDescription {
  std::uint32_t flags = 0;
  std::uint32_t caps = 0;
  int width = 0;
  int height = 0;
};

constexpr std::string_view kDeviceName = "IID_IDirect3DRGBDevice";

struct Viewport {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
  float nearest = 0;
  float farthest = 1;
};

enum class RenderState : std::uint32_t { cullMode = 22, ambient = 139 };
constexpr std::uint32_t kNoCulling = 1;
/// A colour of four parts, each from 0 to 1, as a render state keeps it.
constexpr std::uint32_t kFullAmbient = 0xFFFFFFFFU;

struct Material {
  float red = 0;
  float green = 0;
  float blue = 0;
  bool operator==(const Material&) const = default;
};

enum class Transform { world = 1, view = 2, projection = 3 };

constexpr std::uint32_t kClearTarget = 1;

enum class Primitive : std::uint32_t { points = 1, triangles = 4 };

/// Position, normal, one texture pair: graphics::Vertex.
constexpr std::uint32_t kVertexFormat = 0x112;

/// Vertices as a device takes them. A device that keeps a copy of its own takes another one when
/// the revision has changed, so a mesh that only turns is never copied again.
struct VertexList {
  std::span<const Vertex> vertices;
  std::uint64_t revision = 0;
};

/// The 3D view of one picture. The operations of the set-up say whether they worked; on a device
/// that was not set up, all others do nothing and the picture stays blank.
class Device3D {
 public:
  virtual ~Device3D() = default;

  virtual bool createDirectDraw() = 0;
  virtual bool setCooperativeLevel(CooperativeLevel level) = 0;
  virtual bool createPrimarySurface(std::uint32_t caps) = 0;
  /// Where the picture is on the screen now.
  virtual WindowRect windowRect() = 0;
  virtual bool createBackSurface(const SurfaceDescription& description) = 0;
  /// Keeps what is drawn within the picture.
  virtual bool createClipper() = 0;
  virtual bool createDirect3D() = 0;
  /// The device that draws on the back surface.
  virtual bool createDevice(std::string_view name) = 0;

  virtual void setViewport(const Viewport& viewport) = 0;
  virtual void setRenderState(RenderState state, std::uint32_t value) = 0;
  virtual void setMaterial(const Material& diffuse) = 0;
  virtual void setTransform(Transform transform, const Matrix& matrix) = 0;

  virtual void clear(Colour colour, std::uint32_t flags) = 0;
  virtual void beginScene() = 0;
  virtual void drawPrimitive(Primitive primitive, std::uint32_t format, VertexList list) = 0;
  virtual void endScene() = 0;
  /// Brings the back surface on view.
  virtual void blt(const WindowRect& to) = 0;
};

}  // namespace norvik::graphics
