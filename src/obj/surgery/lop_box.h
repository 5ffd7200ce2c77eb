#pragma once
// PictureLop: parts cut out of the mesh with a box.

#include "workshop/workshop.h"

namespace norvik::obj {

/// A left click on PictureLop lets the next box that is drawn on a flat view cut; another click
/// takes that back. On the front view the operator is asked first. The colours under the box name
/// the groups whose faces go, and "\Lop.txt" in the program folder is the mesh without those of
/// them that begin inside the box. The operator is asked where to save it, and before it replaces a
/// file; after a cancel or a No it stays. The views keep the old mesh, what is gone in red.
/// A click on a part without a box paints it red.
void wireLopBox(Workshop& workshop);

}  // namespace norvik::obj
