#pragma once
// MenuDumpIK: a figure without its inverse kinematics chains.

#include "front/session.h"

namespace norvik::channels {

/// Hangs the removal on MenuDumpIK. After a Yes each inkyChain entry goes from the file of
/// OpenedPath, from its inkyChain line to the next defaultPick line, which goes too, through
/// "\TempIK.txt". A chain without a defaultPick line behind it ends the tool, and the file stays as
/// it is.
void wireIkChains(front::Session& session);

}  // namespace norvik::channels
