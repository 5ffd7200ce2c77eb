#pragma once
// FrameDialHiding: which morph dials are hidden.

#include "front/session.h"

namespace norvik::channels {

/// Hangs the frame on menuHideDialsChannels, which lists the morphs of OpenedPath and selects those
/// whose dials are hidden, and the change on CommandDialHideDone: the fourth line behind each
/// targetGeom line, its `hidden` line, gets 1 if the morph is selected, else 0. The result goes
/// through "\dial.tmp" into the file that a save dialog gives; after a cancel it stays there.
/// Escape in the frame puts it away and changes nothing.
void wireHideDials(front::Session& session);

}  // namespace norvik::channels
