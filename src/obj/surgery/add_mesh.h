#pragma once
// PictureAddOBJ: a second mesh over the one in view.

#include "workshop/workshop.h"

namespace norvik::obj {

/// A left click on PictureAddOBJ asks for a second mesh, reads it into "\FArrayAdd.txt",
/// "\VTArrayAdd.txt" and "\VArrayAdd.txt" in the program folder, and shows it in overlays that the
/// operator drags to the wanted place; then PictureMerge is there to make one mesh of the two. A
/// refused repair of its line endings does not end the tool. An index that no vertex has is
/// FileError 9.
void wireAddMesh(Workshop& workshop);

}  // namespace norvik::obj
