#pragma once
// Which window a form gets.

#include "desktop/desktop_front_end.h"
#include "desktop/window/form_window.h"
#include "front/session.h"

#include <functional>
#include <memory>

namespace norvik::desktop {

/// What a window is made from. `unload` is what its close box does.
struct WindowParts {
  Maker& maker;
  front::Session& session;
  DesktopFrontEnd& frontEnd;
  std::function<void()> unload;
  QWidget* parent;
};

/// The window laid out for this form, or one with its controls at their places (or one below the
/// other) for a form that has none of its own. To lay a form out, write its window in this folder
/// and enter it in form_windows.cpp.
std::unique_ptr<FormWindow> makeFormWindow(front::Form& form, const WindowParts& parts);

}  // namespace norvik::desktop
