#include "builders/phi/form_phi.h"

namespace norvik::builders {

FormPhi::FormPhi() : Form("FormPhi", "Phi Editor") {
  restoreStart();
  static_cast<void>(takeChanges());
}

void FormPhi::restoreStart() {
  edits.clear();
  ListPhi.clear();
  TextPhiEdit.setText({});
  TextPhiEdit.hide();
  LabelPhiSave.hide();
  LabelPhiFileName.setCaption({});
}

}  // namespace norvik::builders
