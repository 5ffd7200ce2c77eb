#pragma once
// What a right click on a picture button tells the operator.

#include "front/session.h"

namespace norvik::front {

/// Hangs the help boxes on the pictures of the main form: a right click shows one and does nothing
/// else.
void wireHelpBoxes(Session& session);

}  // namespace norvik::front
