#pragma once
// PictureMerge: the two meshes on view as one.

#include "workshop/workshop.h"

namespace norvik::obj {

/// A left click on PictureMerge writes one mesh out of the records of the two on view to
/// "\Merge.txt", which then replaces "\MergeTest.obj" in the program folder; that file is viewed.
/// The second mesh's vertices are moved by the place of the front overlay and its indexes raised by
/// the numbers of the first one's. Of both meshes only vertices, texture points, groups, materials
/// and faces are there, cut where their records cut them.
void wireMerge(Workshop& workshop);

/// Whether "\MergeTest.obj" is the mesh in view.
bool isMergedInView(front::Session& session);

/// Asks for a further name of "\MergeTest.obj", which the next merge will replace, and writes it
/// there; an existing file is replaced in one safe step. The mesh in view stays.
void saveMerged(front::Session& session);

}  // namespace norvik::obj
