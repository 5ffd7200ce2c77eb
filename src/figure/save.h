#pragma once
// The four ways in which edited paths, and finished tool results, get into a file.

#include "front/session.h"

namespace norvik::figure {

/// Save, Save As, and the saves before an open and at the exit differ in the line that they write
/// for the geometry, in their dialog, and in which existing file they replace; only Save writes a
/// line of the usual form. All read OpenedPath. Where the replacement fails, on a read-only target
/// or a missing folder, it fails without a word and "\cr2temp.txt" stays in the program folder; the
/// target is then as it was. PathsEdited is cleared in any case, also by a cancelled dialog.
void saveFile(front::Session& session);
void saveFileAs(front::Session& session);
void savePathsBeforeOpen(front::Session& session);
void savePathsAtExit(front::Session& session);

/// Hangs the saves on MenuFileSave and MenuFileSaveAs.
void wireSave(front::Session& session);

}  // namespace norvik::figure
