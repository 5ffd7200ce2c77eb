#pragma once
// LabelMakeUV: texture coordinates for a mesh that has none.

#include "workshop/workshop.h"

namespace norvik::obj {

/// A click on LabelMakeUV lays the faces flat as they are seen from the front, group beside group,
/// draws them into PictureUVMap, and writes the mesh with these coordinates as "\UVNew.obj" into
/// the program folder. The face records change too: from then on each texture index is that of its
/// vertex. Lines of groups and faces keep their first 50 characters in the new mesh.
void wireMakeUV(Workshop& workshop);

}  // namespace norvik::obj
