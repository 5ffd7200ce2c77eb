#pragma once
// The window of DialogERC.

#include "desktop/forms/form_windows.h"
#include "erc/dialog_erc.h"

namespace norvik::desktop {

/// The ten kinds of link in two columns, by what controls; Ready is the default button.
class LinkDialogWindow : public FormWindow {
 public:
  LinkDialogWindow(const WindowParts& parts, erc::DialogERC& form);
};

}  // namespace norvik::desktop
