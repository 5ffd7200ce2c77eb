#pragma once
// PictureTrash as a switch: while it is armed, the lists of body parts and channels drag to it.

#include "front/session.h"

namespace norvik::channels {

/// Hangs the arming on PictureTrash (a left click toggles it between kPictureRest and
/// kPictureActive) and the starts of drags on the two lists. A press on a list sets DragOrigin.
void wireTrash(front::Session& session);

}  // namespace norvik::channels
