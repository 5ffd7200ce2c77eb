#pragma once
// PictureTrash: a switch, and where channels and body parts are dropped to be removed. While it is
// armed, the two lists drag to it.

#include "front/session.h"

namespace norvik::channels {

/// Hangs the arming on PictureTrash (a left click toggles it between kPictureRest and
/// kPictureActive), the starts of drags on the two lists, and the removals on a drop. A press on a
/// list sets DragOrigin. While the trash is armed the key Delete on a list with a selection does
/// what a drop of it does. What a drop removes, see MorphRemove and removeParts; while the view of
/// one part is on it is always channels, whatever was dragged.
void wireTrash(front::Session& session);

/// Ends a removal: the trash rests, and the lists do not drag.
void restTrash(front::Opening& opening);

/// Tells that a file could not be read or written, or that there is nothing to save.
void tellUnconventional(front::Session& session);

}  // namespace norvik::channels
