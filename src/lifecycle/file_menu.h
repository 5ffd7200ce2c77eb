#pragma once
// The entries of the File and Poser menus that are not tools, and what opening a menu tidies away.

#include "front/session.h"

namespace norvik::lifecycle {

/// Hangs menuPLoc, menuScreenRes, MenuAttrib, MenuFileExit, MenuPoser and MenuPStart on their
/// entries. MenuAttrib takes the read-only attribute from the files of one extension in the current
/// folder; the others change no file.
void wireFileMenu(front::Session& session);

}  // namespace norvik::lifecycle
