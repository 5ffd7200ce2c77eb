#pragma once
// PictureNewFile: away with the mesh, and on to another one.

#include "workshop/workshop.h"

namespace norvik::obj {

/// Forgets the mesh in view: arrays, lists of names, pictures and tools; deletes the map tools'
/// scratch files. The colours of groups and materials stay.
void forgetMeshInView(Workshop& workshop);

/// The same, and then asks for a mesh to view next, or, with ReadParamObj set, views "\Param.obj".
void Reset(Workshop& workshop);

/// What a tool does that has made another mesh, or has changed its mind: forgets the mesh in view
/// and views the one of LabelOBJFileName, without asking for it and without the check of its line
/// endings.
void viewAnew(Workshop& workshop);

/// Deletes the scratch files of the map tools, errors ignored.
void deleteMapFiles(front::Session& session);

/// Hangs the reset on PictureNewFile.
void wireReset(Workshop& workshop);

}  // namespace norvik::obj
