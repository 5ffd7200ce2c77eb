#pragma once
// LabelApplyMap: the points of a map made elsewhere.

#include "workshop/workshop.h"

namespace norvik::obj {

/// A click on LabelApplyMap plots the points of "I:\Poser4\UV.txt", one a line, into PictureUVMap.
/// On any other machine it ends in an error: the path is the one it has always had.
void wireApplyMap(Workshop& workshop);

}  // namespace norvik::obj
