#pragma once
// The front view for a machine that shows no 3D.

#include "workshop/workshop.h"

namespace norvik::obj {

/// A right click on the form draws the mesh of LabelOBJFileName into PictureNoDX, straight from
/// the file: nothing is stored. Group and material colours are those that a read has given.
void wireFallBackView(Workshop& workshop);

}  // namespace norvik::obj
