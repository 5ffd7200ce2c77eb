#include "pose/form_pz2_combine.h"

namespace norvik::pose {

FormPZ2Combine::FormPZ2Combine() : Form("FormPZ2Combine", "PZ2 Welder") {
  for (front::ListBox* list : {&ListKeyLinesFirst, &ListKeyLines, &ListTGVP, &ListActors2,
                               &ListActors1, &ListFoundMorphs, &ListNotFound}) {
    list->hide();
  }
  ListFile2.setTip(
      "Check off the morph settings you wish to transfer to the file in the left pane.");
  start_.remember(*this);
  static_cast<void>(takeChanges());
}

void FormPZ2Combine::restoreStart() {
  start_.restore();
  CommonDialogSave.setFileName({});
}

}  // namespace norvik::pose
