#pragma once
// Where the mesh of the figure lies.

#include "workshop/workshop.h"

namespace norvik::obj {

/// Settles LabelOBJFileName and the window's title. A name that ends in "obj" stands; otherwise the
/// reference in TextMainOBJ is followed from Poser's geometry folder, whose folders become the
/// current one on the way. False, after a box, when one of them is not there; nothing else has
/// changed then.
bool settleMeshPath(Workshop& workshop);

}  // namespace norvik::obj
