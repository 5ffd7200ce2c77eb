#pragma once
// PictureScaleObj: meshes made larger or smaller.

#include "front/session.h"

namespace norvik::obj {

/// A left click on PictureScaleObj shows SliderOBJScale, TextOBJScale and CheckOBJBatch. The return
/// key in TextOBJScale scales the file of LabelOBJFileName by the whole number there: a negative
/// one makes it smaller. Normals go, since they would not be right any more. With CheckOBJBatch set
/// all OBJ files of the current folder are scaled, the file itself first; one that lies in that
/// folder comes twice.
void wireScaler(front::Session& session);

}  // namespace norvik::obj
