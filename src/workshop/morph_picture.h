#pragma once
// A mesh without faces: the vertices of a morph.

#include "workshop/workshop.h"

namespace norvik::obj {

/// Whether the store holds fewer than two face records.
bool isMorph(front::Session& session);

/// Tells the operator, and shows the vertices as green dots in the front view.
void showMorph(Workshop& workshop);

}  // namespace norvik::obj
