#pragma once
// The end of the workshop's form.

#include "workshop/workshop.h"

namespace norvik::obj {

/// Hangs the leaving on the form's unloading. With groups or materials renamed the mesh is written
/// with its new names first, and the operator asked where it shall go; a list of names that is on
/// show is to be closed before that. An error keeps the form open, its renames and notes with it.
/// The notes of TextNotes are appended to "\Notes.txt"
/// with the date and the mesh's path; a note that cannot be written keeps the form open. Then the
/// map tools' scratch files and the mesh go, and a read that is under way ends.
void wireLeaving(Workshop& workshop);

}  // namespace norvik::obj
