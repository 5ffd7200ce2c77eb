#pragma once
// FormMOR in a window.

#include "desktop/forms/form_windows.h"
#include "pose/form_mor.h"

namespace norvik::desktop {

/// The morphs of a figure, each with its value, and the field in which a value is typed.
class MorWindow : public FormWindow {
 public:
  MorWindow(const WindowParts& parts, pose::FormMOR& form);
};

}  // namespace norvik::desktop
