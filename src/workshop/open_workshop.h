#pragma once
// PictureOBJView: the way into the workshop.

#include "workshop/workshop.h"

namespace norvik::obj {

/// A left click on PictureOBJView loads FormOBJ with the path of LabelOBJFileName in its title. The
/// mesh is read when the operator asks for it there, by LabelView.
void wireOpenWorkshop(Workshop& workshop);

}  // namespace norvik::obj
