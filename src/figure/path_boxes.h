#pragma once
// The path block of the main form: where the figure's OBJ and main maps lie, and how they are
// repointed.

#include "front/session.h"

namespace norvik::figure {

/// Hangs the path boxes on their labels (a click browses), on the boxes (a double click takes over
/// what was typed) and on the mouse over and in TextMainOBJ. An edit marks its label and
/// PathsEdited; no file changes before a save.
void wirePathBoxes(front::Session& session);

}  // namespace norvik::figure
