#pragma once
// The double click on a body part, which several tools want.

#include "front/session.h"

namespace norvik::channels {

/// Hangs the decision on a double click on ListActors: while PictureMirror is on view the part
/// takes the other side of a morph (see mirror.h), else its channels are put in a new order (see
/// reorder_lists.h).
void wireActorDoubleClick(front::Session& session);

}  // namespace norvik::channels
