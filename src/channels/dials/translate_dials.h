#pragma once
// LabelX, LabelY and LabelZ: a body part's translation dials, hidden or shown.

#include "front/session.h"

namespace norvik::channels {

/// Hangs the labels on menuHideDialsTrans, and the change of one dial on a click on each: the digit
/// of the `hidden` line of the first dial of that axis behind the part selected in ListActors is
/// turned over in the file of OpenedPath, after a Yes. As the part is found where it is named
/// first, that is BODY's dial in an ordinary figure. Nothing else of the file changes, and no
/// scratch file is made.
void wireTranslateDials(front::Session& session);

}  // namespace norvik::channels
