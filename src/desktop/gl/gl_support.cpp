#include "desktop/gl/gl_support.h"

#include <QGuiApplication>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFunctions>

#include <utility>

namespace norvik::desktop {

namespace {

constexpr int kMajor = 3;
constexpr int kMinor = 3;

QSurfaceFormat plainFormat() {
  QSurfaceFormat format;
  format.setVersion(kMajor, kMinor);
  format.setProfile(QSurfaceFormat::CoreProfile);
  constexpr int kDepthBits = 24;
  format.setDepthBufferSize(kDepthBits);
  return format;
}

GlSupport ask() {
  // These have no windows of OpenGL, whatever a context says.
  const QString platform = QGuiApplication::platformName();
  for (const char* without : {"offscreen", "minimal", "vnc", "linuxfb"}) {
    if (platform == QLatin1String(without)) return {};
  }
  QOpenGLContext context;
  context.setFormat(plainFormat());
  if (!context.create()) return {};
  if (context.format().version() < std::pair(kMajor, kMinor)) return {};
  QOffscreenSurface surface;
  surface.setFormat(context.format());
  surface.create();
  if (!context.makeCurrent(&surface)) return {};
  const auto* name = context.functions()->glGetString(GL_RENDERER);
  const QByteArray renderer(reinterpret_cast<const char*>(name));
  context.doneCurrent();
  return {.present = true,
          .software = renderer.contains("llvmpipe") || renderer.contains("softpipe")};
}

}  // namespace

const GlSupport& glSupport() {
  static const GlSupport support = ask();
  return support;
}

QSurfaceFormat glFormat() {
  QSurfaceFormat format = plainFormat();
  constexpr int kSamples = 4;
  // Without hardware smooth edges cost more than they give.
  if (!glSupport().software) format.setSamples(kSamples);
  return format;
}

}  // namespace norvik::desktop
