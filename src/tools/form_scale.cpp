#include "tools/form_scale.h"

namespace norvik::tools {

FormScale::FormScale() : Form("FormScale", "Scaling Background Picture") {
  start_.remember(*this);
  static_cast<void>(takeChanges());
}

void FormScale::restoreStart() {
  start_.restore();
  Picture1.resize(0, 0);
  setFocus(TextHorizontal);
}

}  // namespace norvik::tools
