#pragma once
// How far a mesh reaches, as the form's hidden labels say it.

#include "front/form_obj.h"

namespace norvik::obj {

/// Sets LabelBiggestX, LabelSmallestX and LabelBiggestY, in the pixels of a view: half a picture's
/// width is added to the first one, and the sign of the second is dropped.
void showExtents(front::FormOBJ& form, float biggestX, float smallestX, float biggestY);

}  // namespace norvik::obj
