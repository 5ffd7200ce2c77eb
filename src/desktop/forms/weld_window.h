#pragma once
// FormPZ2Combine in a window.

#include "desktop/forms/form_windows.h"
#include "pose/form_pz2_combine.h"

class QGridLayout;

namespace norvik::desktop {

/// The pose that receives at the left, the one that gives at the right, the morphs that were not
/// found below while the operator is asked about them.
class WeldWindow : public FormWindow {
 public:
  WeldWindow(const WindowParts& parts, pose::FormPZ2Combine& form);

 private:
  void addFirst(QGridLayout& sides);
  void addSecond(QGridLayout& sides);
  void addMissing(QLayout& column);
  void selectDiffering();

  pose::FormPZ2Combine& form_;
};

}  // namespace norvik::desktop
