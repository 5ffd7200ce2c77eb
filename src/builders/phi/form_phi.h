#pragma once
// The editor of phi files.

#include "builders/phi/line_edits.h"
#include "front/form.h"
#include "front/list_box.h"
#include "front/menu_entry.h"
#include "front/text_controls.h"

namespace norvik::builders {

/// The list is the document; LabelPhiSave is on view when a line was changed since the form was
/// opened.
class FormPhi : public front::Form {
 public:
  FormPhi();

  /// The state in which the form is shown: no file, no lines, nothing to save.
  void restoreStart();

  LineEdits edits;

  /// The lines of the phi file.
  front::ListBox ListPhi{*this, "ListPhi"};
  /// The line that is being edited.
  front::TextBox TextPhiEdit{*this, "TextPhiEdit"};
  front::Label LabelPhiSave{*this, "LabelPhiSave", "Save File"};
  front::Label LabelPhiDone{*this, "LabelPhiDone", "Done"};
  front::Label LabelPhiFileName{*this, "LabelPhiFileName"};
  front::MenuEntry MenuPrint{*this, "MenuPrint", "Print"};
  front::MenuEntry MenuPhiHelp{*this, "MenuPhiHelp", "Help"};
};

}  // namespace norvik::builders
