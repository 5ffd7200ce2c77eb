#pragma once
// The files of a figure deleted, or copied to another drive.
//
// LabelGo. A copy goes to the same path on the drive, its folders made; an older one there stands
// until the new one is complete. Files that are not there any more are passed over in silence, what
// else fails is told of at the end.

#include "front/session.h"
#include "install/form_remove_files.h"

namespace norvik::install {

void wireRemoveFiles(front::Session& session, FormRemoveFiles& form);

}  // namespace norvik::install
