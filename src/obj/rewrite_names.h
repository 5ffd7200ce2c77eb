#pragma once
// The mesh with its new names.

#include "workshop/workshop.h"

namespace norvik::obj {

/// Writes the mesh of LabelOBJFileName with the renames of ListGrpRen and ListMatRen and asks where
/// it shall go; after a cancel it stays as "\newobj.txt" in the program folder. What follows a
/// dropped name goes with it, vertices too, up to the next name that is not dropped; of equal names
/// one behind the other the first stays.
void rewriteNames(Workshop& workshop);

}  // namespace norvik::obj
