#pragma once
// The files that a figure uses.
//
// menuFilesRemove shows FormRemoveFiles with them. A figure's geometry, that of its props and its
// maps are found by field reads, so that a comma cuts a path; each line that names a file which is
// not there is told of. Nothing is written.

#include "front/session.h"
#include "install/form_remove_files.h"

namespace norvik::install {

/// Adds the destination's files to a list, each path once, and tells of those that are not there.
void listFigureFiles(front::Session& session, front::ListBox& list);

void wireFigureFiles(front::Session& session, FormRemoveFiles& form);

}  // namespace norvik::install
