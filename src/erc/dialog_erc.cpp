#include "erc/dialog_erc.h"

namespace norvik::erc {

DialogERC::DialogERC() : Form("DialogERC", "Enhanced Remote Control") {
  OptionJCM.setValue(true);
  static_cast<void>(takeChanges());
}

}  // namespace norvik::erc
