#pragma once
// FormCR2Install in a window.

#include "desktop/forms/form_windows.h"
#include "install/form_cr2_install.h"

class QTreeWidget;

namespace norvik::desktop {

/// The folders of the library at the left, what the installation would do at the right.
class Cr2InstallWindow : public FormWindow {
 public:
  Cr2InstallWindow(const WindowParts& parts, install::FormCR2Install& form);

 private:
  QLayout* makeFolders();
  QLayout* makePreview();
  void showPreview();

  front::Session& session_;
  install::FormCR2Install& form_;
  QTreeWidget* preview_ = nullptr;
};

}  // namespace norvik::desktop
