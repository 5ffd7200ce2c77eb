#pragma once
// Where the files of a figure belong in Poser's Runtime tree.
//
// PictureInstallCR2 reads it out of the lines that name files and shows FormCR2Install on the
// library folder that goes with the geometry, which is made if it is missing.

#include "front/session.h"
#include "install/form_cr2_install.h"

namespace norvik::install {

void wireTargetFolders(front::Session& session, FormCR2Install& form);

}  // namespace norvik::install
