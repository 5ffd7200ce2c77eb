#pragma once
// A file that was given at the start, of a type that the start itself passes over.

#include "front/session.h"

namespace norvik::lifecycle {

/// Opens a pz2, hr2, pp2, fc2 or mtl file of the command line as a click on the list of recent
/// files does, once the start is over. One that is not there gets a box with its name. All other
/// files are the start's.
void openGivenFile(front::Session& session);

}  // namespace norvik::lifecycle
