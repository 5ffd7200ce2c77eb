#pragma once
// The window of FormListEMCs.

#include "desktop/forms/form_windows.h"
#include "erc/form_list_emcs.h"

namespace norvik::desktop {

/// The list under a filter, the new ratio below it. Where a ratio is chosen, what is typed replaces
/// the whole text with its word; Ctrl with the arrow keys goes from ratio to ratio.
class RatioWindow : public FormWindow {
 public:
  RatioWindow(const WindowParts& parts, erc::FormListEMCs& form);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void goToRatio(int step);

  erc::FormListEMCs& form_;
  ListView* list_;
  QLineEdit* ratio_;
};

}  // namespace norvik::desktop
