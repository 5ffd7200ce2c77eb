#pragma once
// All windows of the program.

#include "desktop/desktop_front_end.h"
#include "desktop/maker.h"
#include "desktop/window/focus_ring.h"
#include "desktop/window/form_window.h"
#include "desktop/window/main_window.h"

#include <map>
#include <memory>

namespace norvik::desktop {

/// Makes the windows when their forms are first shown, and keeps them in step.
class Windows : public Stage {
 public:
  Windows(Dispatcher& dispatcher, front::Session& session, DesktopFrontEnd& frontEnd,
          const QPalette& system);
  ~Windows() override;

  MainWindow& mainWindow() { return *main_; }

  void show(front::Form& form, bool modal) override;
  void close(front::Form& form) override;
  void setBusy(bool busy) override;
  bool drawTile(int left, int top) override { return main_->drawTile(left, top); }

  /// Repaints in the middle of a pass that has come so far; nothing that the operator does gets
  /// through but the end of the pass.
  void breathe(std::uint64_t position, std::uint64_t size);

 private:
  void sync();
  void rest();
  void followFocus(front::Form& form);
  FormWindow& windowOf(front::Form& form);
  std::unique_ptr<FormWindow> makeWindow(front::Form& form);

  Dispatcher& dispatcher_;
  front::Session& session_;
  DesktopFrontEnd& frontEnd_;
  Bindings bindings_;
  Maker maker_;
  std::unique_ptr<MainWindow> main_;
  std::map<front::Form*, std::unique_ptr<FormWindow>> others_;
  FocusRing ring_;
  std::map<front::Form*, front::Control*> focus_;  ///< as it was last seen
};

}  // namespace norvik::desktop
