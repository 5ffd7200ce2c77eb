#pragma once
// Whether this desktop can draw in three dimensions.

#include <QSurfaceFormat>

namespace norvik::desktop {

struct GlSupport {
  bool present = false;  ///< windows of OpenGL 3.3, core profile
  bool software = false;
};

/// Asked of the window system once; later calls answer from memory.
const GlSupport& glSupport();

/// What the 3D view is drawn with.
QSurfaceFormat glFormat();

}  // namespace norvik::desktop
