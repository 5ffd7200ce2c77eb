#pragma once
// FormPZ2 in a window.

#include "desktop/forms/form_windows.h"
#include "pose/form_pz2.h"

namespace norvik::desktop {

/// The pose builder: the parts and the chosen ones side by side. In MAT mode the materials and the
/// chosen ones with their boxes and colours.
class PoseWindow : public FormWindow {
 public:
  PoseWindow(const WindowParts& parts, pose::FormPZ2& form);

  void sync() override;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  QWidget* makeHead();
  QWidget* makePose();
  QWidget* makeMat();
  QWidget* makeColours(QWidget& parent);
  QWidget* makeBoxes(QWidget& parent);

  pose::FormPZ2& form_;
  QWidget* pose_ = nullptr;
  QWidget* mat_ = nullptr;
};

}  // namespace norvik::desktop
