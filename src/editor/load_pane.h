#pragma once
// Text that comes into a pane of the editor.

#include "editor/form_editor.h"
#include "front/session.h"

#include <string>

namespace norvik::editor {

/// Puts a text into a pane that counts as unchanged afterwards; the caret stands at its start.
void setPane(FormEditor& form, Side side, text::LongText content);

/// Loads a file as it stands into a pane, shows its size, hides that of the other pane, and shows
/// for a while how long it took. Throws what the read throws; the pane is then as it was.
void loadPane(front::Session& session, FormEditor& form, Side side, const std::string& path);

/// What the change of a pane's text brings about: it is offered to be saved, and gets the focus.
void notePaneChange(FormEditor& form, Side side);

/// The seconds from one time to a later one within the hour, each "HH:MM:SS" at the end of a text.
int secondsBetween(std::string_view before, std::string_view after);

}  // namespace norvik::editor
