#pragma once
// PicturePhiLopper: a body part and all below it out of the mesh in view.

#include "workshop/workshop.h"

namespace norvik::obj {

/// A left click on PicturePhiLopper shows FormTree, where the cut is made; when it has closed the
/// mesh of LabelOBJFileName is viewed. A right click tells what it is for.
void wirePhiLopper(Workshop& workshop);

}  // namespace norvik::obj
