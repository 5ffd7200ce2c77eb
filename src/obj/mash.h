#pragma once
// PictureMash: a mesh, or a morph, without the lines that nobody needs.

#include "front/session.h"

namespace norvik::obj {

/// A left click on PictureMash, with an OBJ file open, shows FrameMash with its two options; the
/// next click condenses the file of LabelOBJFileName by the option that is chosen and puts the
/// frame away. OptionMashOBJ drops the normals, OptionMashMorph all but the vertices; a first line
/// says what was done, and a file that has it is left alone. The old file stays under its name with
/// the ending "bak", which must be free (58).
void wireMash(front::Session& session);

}  // namespace norvik::obj
