#pragma once
// The material coordinator's findings in a window.

#include "desktop/forms/marked_items.h"
#include "desktop/window/form_window.h"
#include "front/session.h"
#include "materials/form_mat_coord.h"

class QLabel;

namespace norvik::desktop {

/// Three lists side by side, each with its count, a button that copies it, and a mark at the
/// materials that did not fare as the list says; above them the OBJ that they were compared with.
class MaterialCoordinatorWindow : public FormWindow {
 public:
  MaterialCoordinatorWindow(Maker& maker, front::Session& session, materials::FormMatCoord& form,
                            std::function<void()> unload, QWidget* parent);

 private:
  QWidget* makeColumn(front::Label& heading, front::ListBox& list, MarkedItems::MarkOf markOf);
  Mark markOfRemoved(int row) const;
  Mark markOfUsed(int row) const;

  materials::FormMatCoord& coordination_;
};

}  // namespace norvik::desktop
