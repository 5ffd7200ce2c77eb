#pragma once
// How the editor is opened.

#include "editor/form_editor.h"
#include "front/session.h"

namespace norvik::editor {

/// Hangs the editor on the menu entry "Manual Editor", on PictureEditor, on the two file name
/// labels and on the open of an .mtl. Which file it shows goes by the foreground of
/// LabelChannelFileName: 255 is the source, all else the destination. A click on PictureEditor with
/// a source open asks for the source, and forgets that paths were edited.
void wireOpenEditor(front::Session& session, FormEditor& form);

}  // namespace norvik::editor
