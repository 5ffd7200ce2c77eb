#include "erc/form_list_emcs.h"

namespace norvik::erc {

FormListEMCs::FormListEMCs() : Form("FormListEMCs", "Channel Listing") {
  restoreStart();
  static_cast<void>(takeChanges());
}

void FormListEMCs::restoreStart() {
  RatioLines.clear();
  LabelTitle.setCaption({});
  ListEMCs.clear();
  ListEMCs.setFore(front::kListNormal);
  Text1.setText({});
  Text1.show();
  Label1.show();
}

}  // namespace norvik::erc
