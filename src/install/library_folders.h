#pragma once
// Folders of the library, made and removed on the way to the one that a figure goes to.
//
// LabelNewDir shows the box for a new folder's name, and Enter in it makes the folder below the one
// on view. LabelRmDir removes the folder on view, if it is empty.

#include "front/session.h"
#include "install/form_cr2_install.h"

namespace norvik::install {

void wireLibraryFolders(front::Session& session, FormCR2Install& form);

}  // namespace norvik::install
