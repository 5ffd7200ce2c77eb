#pragma once
// Chosen groups or materials as a mesh of their own.

#include "workshop/workshop.h"

namespace norvik::obj {

/// CheckSaveGroups shows ListGroupsSave, all group names and "DONE" behind them. A tick of that one
/// writes the lines of the ticked groups, with all vertices, so that every index stays good, and
/// asks where they shall go; after a cancel they stay as "\newobj.obj" in the program folder. The
/// materials have twins of all this.
void wireSavingNames(Workshop& workshop);

}  // namespace norvik::obj
