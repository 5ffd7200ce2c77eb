#include "desktop/spin_timing.h"

#include "desktop/gl/gl_support.h"
#include "desktop/gl/gl_view.h"
#include "front/form.h"

#include <QElapsedTimer>
#include <QtTest>

#include <cmath>
#include <iostream>
#include <numbers>
#include <vector>

namespace norvik::desktop {

namespace {

using graphics::Transform;
using graphics::Vertex;

/// A ball around the point that the eye looks at, of two triangles for each of its fields.
std::vector<Vertex> ball(int triangles) {
  constexpr float kRadius = 1.8F;
  constexpr float kPi = std::numbers::pi_v<float>;
  const int rings = static_cast<int>(std::sqrt(static_cast<float>(triangles) / 4));
  const auto corner = [&](int ring, int step) {
    const float down = kPi * static_cast<float>(ring) / static_cast<float>(rings);
    const float around = kPi * static_cast<float>(step) / static_cast<float>(rings);
    return Vertex{.x = kRadius * std::sin(down) * std::cos(around),
                  .y = 2.5F + kRadius * std::cos(down),
                  .z = kRadius * std::sin(down) * std::sin(around)};
  };
  std::vector<Vertex> mesh;
  for (int ring = 0; ring < rings; ++ring) {
    for (int step = 0; step < 2 * rings; ++step) {
      for (const auto& [r, s] : {std::pair{0, 0}, {1, 0}, {1, 1}, {0, 0}, {1, 1}, {0, 1}}) {
        mesh.push_back(corner(ring + r, step + s));
      }
    }
  }
  return mesh;
}

struct TimedForm : front::Form {
  TimedForm() : Form("TimedForm", "") {}
  front::PictureBox Picture{*this, "Picture", 600, 600};
};

}  // namespace

void timeSpin(int triangles) {
  constexpr int kWarmUp = 5;
  constexpr int kFrames = 100;
  constexpr float kSpeed = 0.01F;
  constexpr double kSecond = 1e9;
  if (!glSupport().present) {
    std::cout << "no OpenGL here\n";
    return;
  }
  TimedForm form;
  GlDevice device(form.Picture);
  GlView view(device, nullptr);
  view.setFixedSize(600, 600);
  view.show();
  static_cast<void>(QTest::qWaitForWindowExposed(&view));
  device.createDirectDraw();
  device.createDevice(graphics::kDeviceName);
  device.setMaterial({0, 0, 1});
  device.setTransform(Transform::view,
                      graphics::viewMatrix({0, 2.5F, -3}, {0, 2.5F, 0}, {0, 1, 0}, 0));
  device.setTransform(Transform::projection, graphics::projectionMatrix(1, 1000, 3.14F / 2));
  const std::vector<Vertex> mesh = ball(triangles);
  QElapsedTimer clock;
  for (int i = 0; i < kWarmUp + kFrames; ++i) {
    if (i == kWarmUp) clock.start();
    const int before = view.counts().frames;
    device.setTransform(Transform::world, graphics::rotationAboutY(kSpeed * static_cast<float>(i)));
    device.clear(graphics::kWhite, graphics::kClearTarget);
    device.drawPrimitive(graphics::Primitive::triangles, graphics::kVertexFormat, {mesh, 1});
    device.blt(device.windowRect());
    while (view.counts().frames == before) QCoreApplication::processEvents();
  }
  std::cout << mesh.size() / 3
            << " triangles: " << kFrames * kSecond / static_cast<double>(clock.nsecsElapsed())
            << " frames a second, uploads: " << view.counts().uploads
            << (glSupport().software ? " (software renderer)\n" : "\n");
}

}  // namespace norvik::desktop
