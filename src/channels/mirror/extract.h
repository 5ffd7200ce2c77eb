#pragma once
// A right click on ListChannels: a morph turned back into an OBJ.

#include "front/session.h"

namespace norvik::channels {

/// Hangs the extraction on the right button's release over ListChannels in the view of one part. Of
/// the item clicked last "\Extract.obj" gets the displacements and "\NewMor.obj" the part's
/// vertices, displaced, both in the program folder. No other file changes.
void wireExtract(front::Session& session);

}  // namespace norvik::channels
