#pragma once
// MenuBendOn and MenuBendOff: whether a body part bends.

#include "front/session.h"

namespace norvik::channels {

/// Hangs the change on the two entries. The first line that holds "bend" behind the line of the
/// part selected in ListActors is replaced in the file of OpenedPath, through "\TempBend.txt" and
/// without a question; for a part's entry in the storage section that is, as a rule, BODY's. Where
/// it has the value already the file stays as it is, and what was copied stays in "\TempBend.txt".
void wireBend(front::Session& session);

}  // namespace norvik::channels
