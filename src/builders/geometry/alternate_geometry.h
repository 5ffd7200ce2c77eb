#pragma once
// menuGeomSwitch: another geometry for an actor, and the dial that switches between them.

#include "front/session.h"

namespace norvik::builders {

/// Hangs the list of actors on menuGeomSwitch, and the insertion on a click in that list.
///
/// The list, ListAltGeomActors, is filled from ListActors and, for a prop file, with its props; it
/// stays on view until a right click hides it. A click asks for the OBJ in the middle of the pass
/// over the opened file. The result stands as "\AltGeom.cr2" or "\AltGeom.pp2" in the program
/// folder, and only when it is whole; older results go before the question, but for one that is
/// itself the file worked on: that one is replaced in the end. The opened file does not change.
void wireAlternateGeometry(front::Session& session);

}  // namespace norvik::builders
