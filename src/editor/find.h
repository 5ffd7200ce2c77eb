#pragma once
// Find and replace in the editor.

#include "editor/form_editor.h"
#include "front/session.h"

namespace norvik::editor {

/// Hangs the find row on PictureFind and PictureReplace. Enter in ComboFind and F3 in a pane find
/// the next hit behind the caret's own place and select it; there is no wrap and no message. With
/// TextReplace on view F3 asks at each hit whether it shall be replaced. Enter in TextReplace
/// replaces all from the start of the pane, or asks at each hit from the caret on.
///
/// It is wired in front of the caret, so that a line display tells where F3 has gone.
void wireFind(front::Session& session, FormEditor& form);

}  // namespace norvik::editor
