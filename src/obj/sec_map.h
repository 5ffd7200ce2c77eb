#pragma once
// LabelSecMap: the template of a second map.

#include "workshop/workshop.h"

namespace norvik::obj {

/// A click on LabelSecMap draws the faces of "\groupface.txt", with the points of
/// "\groupvertex.txt", into PictureSecMap, upside down against the first template, and asks for a
/// size in TextMapSizeSec. Both files are what an earlier version of the program has left.
void wireSecMap(Workshop& workshop);

}  // namespace norvik::obj
