#pragma once
// The window of FormECM.

#include "desktop/forms/form_windows.h"
#include "erc/form_ecm.h"

class QLabel;
class QTimer;
class QVBoxLayout;

namespace norvik::desktop {

/// The choices as steps with what was chosen so far, the lists beside them, and below the lines as
/// they will be written, with the channel behind which they go. What is shown there is read from
/// the figure shortly after the last change; it writes nothing and asks nothing.
class LinkWindow : public FormWindow {
 public:
  LinkWindow(const WindowParts& parts, erc::FormECM& form);

 private:
  QWidget* makeSteps();
  QWidget* makeLists();
  QWidget* makePreview();
  void preview();

  front::Session& session_;
  erc::FormECM& form_;
  QLabel* lines_ = nullptr;
  QLabel* place_ = nullptr;
  QTimer* pause_ = nullptr;
};

}  // namespace norvik::desktop
