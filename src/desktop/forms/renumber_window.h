#pragma once
// FormRenumber in a window.

#include "desktop/forms/form_windows.h"
#include "install/form_renumber.h"

class QLabel;
class QListWidget;

namespace norvik::desktop {

/// The folders at the left, its files in the middle, the new names at the right.
class RenumberWindow : public FormWindow {
 public:
  RenumberWindow(const WindowParts& parts, install::FormRenumber& form);

 private:
  QLayout* makeFolders();
  QLayout* makeFiles();
  QLayout* makePreview();
  void showPreview();

  front::Session& session_;
  install::FormRenumber& form_;
  QListWidget* preview_ = nullptr;
};

}  // namespace norvik::desktop
