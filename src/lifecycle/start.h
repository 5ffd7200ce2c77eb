#pragma once
// The start of the program.

#include "front/session.h"

namespace norvik::lifecycle {

/// Shows the main form and does what comes before the first event: asks for Poser's program at the
/// first start, keeps the program folder and version in the settings, makes "\cr2install", loads
/// the recent files, sweeps mesh scratch files away, and opens the file of the command line.
void startProgram(front::Session& session);

}  // namespace norvik::lifecycle
