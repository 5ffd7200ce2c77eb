#pragma once
// The files of a figure go to their places.
//
// Enter in DirCR2Install, once the operator has opened a folder of the library. The CR2 goes there,
// its geometry and maps where the CR2 says, all by a move that never overwrites: what cannot go
// stays in the staging folder, where a later run finds it, and is reported.

#include "front/session.h"
#include "install/form_cr2_install.h"
#include "install/install_menu.h"

namespace norvik::install {

void wireInstallation(front::Session& session, FormCR2Install& form, InstallerView& view);

}  // namespace norvik::install
