#pragma once
// Whether the operator wants things to move.

namespace norvik::desktop {

/// Whether the desktop is told to do without animations.
bool systemReducesMotion();

}  // namespace norvik::desktop
