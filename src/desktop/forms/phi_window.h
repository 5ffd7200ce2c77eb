#pragma once
// The editor of phi files on the screen.

#include "builders/phi/form_phi.h"
#include "desktop/bind/menu_binding.h"
#include "desktop/forms/form_windows.h"

#include <memory>

class QAction;
class QMenuBar;

namespace norvik::desktop {

/// The lines, the one that is being edited below them, and the buttons. Edits can be undone; while
/// some are not saved the title has a mark.
class PhiWindow : public FormWindow {
 public:
  PhiWindow(const WindowParts& parts, builders::FormPhi& form);

  void sync() override;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  QMenuBar* makeMenu();
  QAction* addStep(QMenu& menu, const QString& name, const QKeySequence& key,
                   void (*step)(builders::FormPhi&));
  QWidget* makeLine();
  QLayout* makeButtons();

  builders::FormPhi& form_;
  std::unique_ptr<MenuTree> menu_;
  QWidget* lines_ = nullptr;
  QAction* undo_ = nullptr;
  QAction* redo_ = nullptr;
};

}  // namespace norvik::desktop
