#pragma once
// How fast a mesh spins.

namespace norvik::desktop {

/// Turns a ball of so many triangles in a window of 600 by 600, as fast as it can be painted, and
/// prints the frames a second and what was uploaded.
void timeSpin(int triangles);

}  // namespace norvik::desktop
