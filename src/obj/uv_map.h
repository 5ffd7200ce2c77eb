#pragma once
// LabelUVMap: the texture template of a mesh that has coordinates.

#include "workshop/workshop.h"

namespace norvik::obj {

/// A click on LabelUVMap draws the texture coordinates of the faces into PictureUVMap, each face
/// without the line from its last corner to its first. It does so once after a read of the mesh; a
/// template that is not saved yet is shown again.
void wireUVMap(Workshop& workshop);

}  // namespace norvik::obj
