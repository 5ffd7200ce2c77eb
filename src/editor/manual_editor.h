#pragma once
// The manual editor as a whole.

#include "editor/form_editor.h"
#include "front/session.h"

namespace norvik::editor {

/// Hangs the editor's tools on their triggers, and its pictures' help on a right click.
void wireManualEditor(front::Session& session, FormEditor& form);

}  // namespace norvik::editor
