#pragma once
// A name pointed at, and its faces in the views.

#include "workshop/workshop.h"

namespace norvik::obj {

/// A name that is pointed at in a listing of the window has its faces marked over the flat views
/// and the 3D view, in place of what was marked before; the same name again is marked no more. The
/// mark goes with the mesh in view, by a reset or another read.
void wireNameMark(Workshop& workshop);

}  // namespace norvik::obj
