#pragma once
// Any other form in a window.

#include "desktop/maker.h"
#include "front/form.h"

#include <QDialog>

#include <functional>

namespace norvik::desktop {

/// A window for a form, its controls at their places, or one below the other where the form names
/// no places. Its close box unloads the form.
class FormWindow : public QDialog {
 public:
  FormWindow(Maker& maker, front::Form& form, std::function<void()> unload, QWidget* parent);

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void placeControls(Maker& maker);
  void stackControls(Maker& maker);

  Maker& maker_;
  front::Form& form_;
  std::function<void()> unload_;
};

}  // namespace norvik::desktop
