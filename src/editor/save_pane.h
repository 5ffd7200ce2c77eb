#pragma once
// What is done with the text of a pane: it is saved, printed, and asked about on leaving.

#include "editor/form_editor.h"
#include "front/session.h"

namespace norvik::editor {

/// Asks "Save changes?" if the pane was typed in, and saves it on Yes under a name that the
/// operator chooses; after a cancel it is not saved. Throws what the save throws.
void offerToSave(front::Session& session, FormEditor& form, Side side);

/// Hangs saving on PictureSave, which offers each changed pane, printing of the current pane's
/// selection or of all of it on PicturePrint, and the questions on the unloading of the form. A
/// save that fails leaves the form open with its text.
void wireSavePane(front::Session& session, FormEditor& form);

}  // namespace norvik::editor
