#pragma once
// menuDialTrackSpeed: how fast a dial turns.

#include "front/session.h"

namespace norvik::channels {

/// Hangs the list of channels on menuDialTrackSpeed, the look-up of a dial's present speed on a
/// click on its item, and the change on Enter in TextTrackingSpeed: the first trackingScale line at
/// or behind the one that holds the dial's name gets the typed text, in the file of OpenedPath,
/// through "\TS.txt" and without a question. Escape puts the list or the box away and changes
/// nothing.
void wireTrackingSpeed(front::Session& session);

}  // namespace norvik::channels
