#include "dials/renamer_form.h"

namespace norvik::dials {

Renamer::Renamer() : Form("Renamer", "CR2 Dial Renamer") {
  Label1.setDragging(true);
  start_.remember(*this);
  static_cast<void>(takeChanges());
}

void Renamer::restoreStart() {
  start_.restore();
  chosen.reset();
  pickedFile.clear();
}

}  // namespace norvik::dials
