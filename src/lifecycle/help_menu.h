#pragma once
// The Help menu.

#include "front/session.h"

namespace norvik::lifecycle {

/// Hangs MenuHelp, menuWebTutorials, menuCheckVer and MenuAbout on their entries. The version check
/// leaves the fetched text in "\NorvikVer.txt" of the program folder.
void wireHelpMenu(front::Session& session);

}  // namespace norvik::lifecycle
