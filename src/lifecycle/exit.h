#pragma once
// The end of the program.

#include "front/session.h"

namespace norvik::lifecycle {

/// Hangs the exit steps on the unloading of the main form: path changes are offered to be saved,
/// the note box is appended to the note file, the recent files are kept, the other forms unload,
/// scratch files go, and the closing animation and sound run. An error in the save of the paths
/// ends the unloading there: the form stays.
void wireExit(front::Session& session);

}  // namespace norvik::lifecycle
