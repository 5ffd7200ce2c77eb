#pragma once
// LabelMirror: the mesh in view turned over, by the signs of its numbers.

#include "workshop/workshop.h"

#include <string>
#include <string_view>

namespace norvik::obj {

/// The axes across which a mesh is mirrored.
struct MirrorAxes {
  bool x = false;
  bool y = false;
  bool z = false;
};

/// A vertex line with its signs changed; `record` is trimmed. The sign is text: "0" becomes "-0". A
/// line that is mirrored on y or z but not on x has no "v " in front any more, and on a negative y
/// it holds its numbers twice, unless z is mirrored too: the operator is warned of both.
std::string mirroredLine(std::string_view record, const MirrorAxes& axes);

/// Writes "\Mirror.txt" and "\MirrorOBJ.txt" in the program folder, out of the records of the mesh
/// in view and the file of LabelOBJFileName.
void writeMirrored(front::Session& session, const MirrorAxes& axes, bool turnFaces);

/// A click on LabelMirror asks for each of the three axes, and writes "\Mirror.txt" (the vertex
/// lines) and "\MirrorOBJ.txt" (the mesh of LabelOBJFileName with these in place of its own) in the
/// program folder. The operator chooses a place for the latter, and the mesh that he has saved is
/// viewed; after a cancel the old one is, and the file stays. Faces keep the order of their
/// corners, unless TurnFacesRound is set and the mesh was mirrored on an odd number of axes.
void wireMirror(Workshop& workshop);

}  // namespace norvik::obj
