#pragma once
// TextForceLimits: a body part's limits, forced or given back.

#include "front/session.h"

namespace norvik::channels {

/// Hangs the change on Enter in TextForceLimits: after a Yes the digit of the first `forceLimits`
/// line behind the part's second actor line is turned over in the file of OpenedPath. The box's
/// text is the beginning of the part's name. Nothing else of the file changes, and no scratch file
/// is made.
void wireForceLimits(front::Session& session);

}  // namespace norvik::channels
