#pragma once
// The 3D view of the workshop, PictureObjViewer2: its set-up, a frame, and the spin.

#include "workshop/workshop.h"

namespace norvik::obj {

graphics::Vector MakeVector(float x, float y, float z);

/// Makes the surfaces and the device that draws on them. When the platform cannot, the view stays
/// blank and everything else works.
void Direct3DInit(Workshop& workshop);
/// Says how the device draws: viewport, states, and where the eye is.
void DirectDrawInit(Workshop& workshop);
/// Clears the view to white.
void clearView(Workshop& workshop);
/// Draws the display list as the options say.
void drawFrame(Workshop& workshop);

/// Puts the eye at a height. It stands three units before the middle and looks straight ahead.
void lookFromHeight(Workshop& workshop, float height);
constexpr float kEyeHeight = 2.5F;
/// Sets the field of view to 3.14 divided by a number; 2 is the view of the start. Nothing can be
/// seen through a divisor of 0: the field stays as it is.
void setField(Workshop& workshop, float divisor);

/// Turns the mesh until the spin is stopped or the form is gone.
void MainLoop(Workshop& workshop);

/// A load of the form makes the view; when it is unloaded the spin ends.
void wireSpin(Workshop& workshop);

}  // namespace norvik::obj
