#pragma once
// The material coordinator's findings in a window.

#include "desktop/window/form_window.h"
#include "front/session.h"
#include "materials/form_mat_coord.h"

namespace norvik::desktop {

/// Three lists side by side, each with its count, a button that copies it, and a mark at the
/// materials that did not fare as the list says; above them the OBJ that they were compared with.
class MaterialCoordinatorWindow : public FormWindow {
 public:
  MaterialCoordinatorWindow(Maker& maker, front::Session& session, materials::FormMatCoord& form,
                            std::function<void()> unload, QWidget* parent);

 private:
  /// `words` and `reason` are what is said of a row that `isMarked` marks.
  struct Marks {
    std::function<bool(int row)> isMarked;
    QString words;
    QString reason;
  };
  QWidget* makeColumn(front::Label& heading, front::ListBox& list, const Marks& marks);
};

}  // namespace norvik::desktop
