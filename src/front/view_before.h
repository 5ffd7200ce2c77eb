#pragma once
// What was on view before a tool took the form over.

#include "front/control.h"

#include <initializer_list>
#include <string>
#include <vector>

namespace norvik::front {

/// Hides controls and shows those of them again that were on view:
///
///     before.hide({&opening.ListActors, &opening.ListMaterials});
///     ...
///     before.restore();
///
/// A second hiding in front of the restoring adds what is on view by then.
class ViewBefore {
 public:
  void hide(std::initializer_list<Control*> controls) {
    for (Control* control : controls) {
      if (!control->visible()) continue;
      hidden_.push_back(control);
      control->hide();
    }
  }

  void restore() {
    for (Control* control : hidden_) control->show();
    hidden_.clear();
  }

  /// Whether something waits to be shown again.
  bool holds() const { return !hidden_.empty(); }

 private:
  std::vector<Control*> hidden_;
};

}  // namespace norvik::front
