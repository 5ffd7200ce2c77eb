#pragma once
// Further files in the editor.

#include "editor/form_editor.h"
#include "front/session.h"

namespace norvik::editor {

/// Hangs the opening of a second file on PictureSecFile: from the recent files, or by a dialog. The
/// list's choice goes into the left pane, with Shift into the right one; leaving the list hides it.
/// OptionNewFile empties the right pane for "New.txt" in Poser's folder. What stood in a pane goes
/// without a question.
void wireSecondFile(front::Session& session, FormEditor& form);

}  // namespace norvik::editor
