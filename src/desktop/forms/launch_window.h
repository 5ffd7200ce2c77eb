#pragma once
// FormLaunch laid out: a target for files of any file manager, and a button for those who drag
// nothing.

#include "desktop/forms/form_windows.h"
#include "tools/form_launch.h"

#include <cstdint>

class QLabel;

namespace norvik::desktop {

/// It stays in front of the other windows; behind a file that it has opened the main window comes
/// up.
class LaunchWindow : public FormWindow {
 public:
  LaunchWindow(const WindowParts& parts, tools::FormLaunch& form);

  void rest() override;

 private:
  void chooseFile();
  void showNote();

  front::Session& session_;
  DesktopFrontEnd& frontEnd_;
  tools::FormLaunch& form_;
  QLabel* note_ = nullptr;
  std::uint64_t opened_ = 0;
};

}  // namespace norvik::desktop
