#pragma once
// FormScale laid out: the size of a sheet of graph paper, and the sheet below it.

#include "desktop/forms/form_windows.h"
#include "tools/form_scale.h"

class QLabel;
class QPushButton;

namespace norvik::desktop {

/// The button does what Enter in the second box does; behind a sheet it begins another one.
class ScaleWindow : public FormWindow {
 public:
  ScaleWindow(const WindowParts& parts, tools::FormScale& form);

  void rest() override;

 private:
  void addBoxes(QLayout& column);
  void addSheet(QLayout& column);
  void addButtons(QLayout& column);
  void go();

  front::Session& session_;
  tools::FormScale& form_;
  QLabel* place_ = nullptr;
  QPushButton* go_ = nullptr;
};

}  // namespace norvik::desktop
