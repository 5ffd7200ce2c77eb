#include "editor/form_notes.h"

namespace norvik::editor {

namespace {

constexpr front::Box kNotesForm{0, 0, 9000, 7200};  // twips
constexpr front::Box kHoleForm{0, 0, 3000, 3000};

}  // namespace

FormNotes::FormNotes() : Form("FormNotes", "Notes") {
  setBox(kNotesForm);
  RichTextBox1.setBox({8, 8, 584, 424});
  CommandSave.setBox({416, 444, 80, 24});
  CommandClose.setBox({512, 444, 80, 24});
  setFocus(RichTextBox1);
  static_cast<void>(takeChanges());
}

FormHole::FormHole() : Form("FormHole", "") {
  setBox(kHoleForm);
}

}  // namespace norvik::editor
