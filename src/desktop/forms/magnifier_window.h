#pragma once
// Magnifier laid out: the image, its zoom on the right, the colour under the pointer below.

#include "desktop/forms/form_windows.h"
#include "tools/magnifier_form.h"

class QFrame;
class QLabel;

namespace norvik::desktop {

/// A small window in front of all others. The image follows the size of the window; a press beside
/// it moves the window. Where the system lets no program look at the screen it says so.
class MagnifierWindow : public FormWindow {
 public:
  MagnifierWindow(const WindowParts& parts, tools::Magnifier& form);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  QLayout* makeStrip();
  void fitImage();
  void showColour();

  tools::Magnifier& form_;
  SurfaceView* image_ = nullptr;
  QFrame* well_ = nullptr;
  QLabel* colour_ = nullptr;
};

}  // namespace norvik::desktop
