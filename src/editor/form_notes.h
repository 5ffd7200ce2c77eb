#pragma once
// The operator's running notes.

#include "front/form.h"
#include "front/text_controls.h"
#include "front/text_pane.h"

namespace norvik::editor {

class FormNotes : public front::Form {
 public:
  FormNotes();

  front::TextPane RichTextBox1{*this, "RichTextBox1"};
  front::CommandButton CommandSave{*this, "CommandSave", "SAVE"};
  front::CommandButton CommandClose{*this, "CommandClose", "CLOSE"};
};

/// A small frameless form of the OBJ workshop; it has no controls.
class FormHole : public front::Form {
 public:
  FormHole();
};

}  // namespace norvik::editor
