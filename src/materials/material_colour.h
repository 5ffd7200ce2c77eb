#pragma once
// PictureMatColor and PictureMatHiLite: another colour for a material.

#include "front/session.h"

namespace norvik::materials {

/// Hangs the change of a colour on a left click on the two swatches. The colour comes from the
/// colour dialog; the destination's file is written with it as "\color.txt" in the program folder,
/// which takes the place of the file that the save dialog gives. After a Cancel "\color.txt" stays,
/// until the exit.
///
/// A highlight is written as a second KdColor line in place of the KsColor line, which the figures
/// out there have by now; the next change of that material's highlight therefore finds the next
/// material's line. A material without the line does the same.
void wireMaterialColours(front::Session& session);

/// The same change of a diffuse colour for the material that a box names, to the box's background.
/// It asks first, and says so when the file has no such material. For the tools whose boxes take
/// colours by drag and drop.
void setColourFromBox(front::Session& session, const front::TextBox& box);

}  // namespace norvik::materials
