#pragma once
// The caret of a pane: what its keys mean, which line it is in, and the jump to a line.

#include "editor/form_editor.h"
#include "front/session.h"

#include <cstdint>
#include <string_view>

namespace norvik::editor {

/// The place of a line's first byte; -1 for a line that is not there. Lines count from 1.
std::int64_t GetCharFromLine(const front::TextPane& page, std::int64_t line);

/// Whether a key marks its pane as typed in. It goes by the key, not by the character: letters and
/// the keys of the number pad do, and Enter, Space, Delete, Backspace and Tab; digits and signs of
/// the main keyboard, arrows and function keys do not.
bool marksTyping(std::string_view key);

/// Whether a key is F3, whatever is held with it.
bool isFindAgain(std::string_view key);

/// Hangs the line display on the caret's events, the jump on CommandGotoLineNum and on Enter in
/// TextLineNum, and the timers of the form. A pane becomes the current one by a key, a click or a
/// caret event in it, when whatever the key does is done.
void wireCaret(FormEditor& form);

}  // namespace norvik::editor
