#include "workshop/spin.h"

namespace norvik::obj {

namespace {

using graphics::Device3D;
using graphics::Primitive;
using graphics::Transform;

constexpr float kHalfTurn = 3.14F;
constexpr float kStartDivisor = 2;

Device3D& deviceOf(Workshop& workshop) {
  return workshop.session.front.device(workshop.form.PictureObjViewer2);
}

void drawList(Workshop& workshop, Device3D& device) {
  const DisplayList& list = workshop.mesh.display;
  const graphics::VertexList vertices{list.vertices, list.revision};
  device.setMaterial(workshop.spin.diffuse);
  device.clear(graphics::kWhite, graphics::kClearTarget);
  device.beginScene();
  if (workshop.form.OptionShowPolys.value()) {
    device.drawPrimitive(Primitive::triangles, graphics::kVertexFormat, vertices);
  }
  if (workshop.form.OptionShowPoints.value()) {
    device.drawPrimitive(Primitive::points, graphics::kVertexFormat, vertices);
  }
  device.endScene();
}

/// The loop is under way as long as this lives, however the loop ends.
class Looping {
 public:
  explicit Looping(Spin& spin) : spin_(spin) { spin_.looping = true; }
  Looping(const Looping&) = delete;
  Looping& operator=(const Looping&) = delete;
  ~Looping() { spin_.looping = false; }

 private:
  Spin& spin_;
};

}  // namespace

graphics::Vector MakeVector(float x, float y, float z) {
  return {x, y, z};
}

void Direct3DInit(Workshop& workshop) {
  Device3D& device = deviceOf(workshop);
  if (!device.createDirectDraw()) return;
  if (!device.setCooperativeLevel(graphics::CooperativeLevel::normal)) return;
  if (!device.createPrimarySurface(graphics::surface_caps::kPrimary)) return;
  const graphics::WindowRect window = device.windowRect();
  if (!device.createBackSurface({graphics::kSurfaceFlags, graphics::surface_caps::kOffscreen3D,
                                 window.width(), window.height()})) {
    return;
  }
  if (!device.createClipper() || !device.createDirect3D()) return;
  device.createDevice(graphics::kDeviceName);
}

void DirectDrawInit(Workshop& workshop) {
  Device3D& device = deviceOf(workshop);
  const graphics::WindowRect window = device.windowRect();
  device.setViewport({0, 0, window.width(), window.height(), 0, 1});
  device.setRenderState(graphics::RenderState::ambient, graphics::kFullAmbient);
  device.setRenderState(graphics::RenderState::cullMode, graphics::kNoCulling);
  device.setMaterial(workshop.spin.diffuse);
  device.setTransform(Transform::world, graphics::identityMatrix());
  lookFromHeight(workshop, kEyeHeight);
  setField(workshop, kStartDivisor);
}

void clearView(Workshop& workshop) {
  Device3D& device = deviceOf(workshop);
  device.clear(graphics::kWhite, graphics::kClearTarget);
  device.blt(device.windowRect());
}

void drawFrame(Workshop& workshop) {
  Device3D& device = deviceOf(workshop);
  drawList(workshop, device);
  device.blt(device.windowRect());
}

void lookFromHeight(Workshop& workshop, float height) {
  constexpr float kDistance = 3;
  deviceOf(workshop).setTransform(
      Transform::view, graphics::viewMatrix(MakeVector(0, height, -kDistance),
                                            MakeVector(0, height, 0), MakeVector(0, 1, 0), 0));
}

void setField(Workshop& workshop, float divisor) {
  constexpr float kNear = 1;
  constexpr float kFar = 1000;
  if (divisor == 0) return;
  deviceOf(workshop).setTransform(Transform::projection,
                                  graphics::projectionMatrix(kNear, kFar, kHalfTurn / divisor));
}

void MainLoop(Workshop& workshop) {
  constexpr float kStepsOfARadian = 360;
  front::FormOBJ& form = workshop.form;
  Spin& spin = workshop.spin;
  form.PictureObjViewer2.show();
  form.PictureNoDX.hide();
  form.PictureOBJViewer.hide();
  // Stopped and started again between two frames: the loop that runs goes on.
  if (spin.looping) return;
  const Looping looping(spin);
  Device3D& device = deviceOf(workshop);
  const int load = spin.loads;
  while (!spin.SpinStopped && spin.loads == load) {
    spin.SpinAngle += static_cast<float>(spin.SpinSpeed);
    drawList(workshop, device);
    device.setTransform(Transform::world,
                        graphics::rotationAboutY(spin.SpinAngle / kStepsOfARadian));
    device.blt(device.windowRect());
    if (!workshop.session.front.nextFrame()) return;
  }
}

void wireSpin(Workshop& workshop) {
  workshop.form.loading.add([&workshop] {
    workshop.spin = {.looping = workshop.spin.looping, .loads = workshop.spin.loads + 1};
    Direct3DInit(workshop);
    workshop.session.front.pumpEvents();
    DirectDrawInit(workshop);
    workshop.session.front.pumpEvents();
  });
  workshop.form.unloading.add([&workshop] { workshop.spin.SpinStopped = true; });
}

}  // namespace norvik::obj
