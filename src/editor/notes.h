#pragma once
// The notepad of the main form, and the forms that show or write notes.

#include "editor/form_notes.h"
#include "front/form_obj.h"
#include "front/session.h"

namespace norvik::editor {

/// "Open Notebook" shows TextOpeningNotes; a double click on it appends its text to "\Notes.txt" in
/// the program folder with the date, and hides it. "Open Note File" starts the system's editor on
/// that file.
void wireNotepad(front::Session& session);

/// FormNotes makes the note file if there is none, shows it as it stands, and saves it back.
void wireFormNotes(front::Session& session, FormNotes& form);

/// The unloading of FormHole appends the workshop's notes to "Notes.txt" in the current folder,
/// without a date, and hides their box.
void wireFormHole(front::Session& session, FormHole& form, front::FormOBJ& workshop);

}  // namespace norvik::editor
