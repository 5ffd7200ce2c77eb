#pragma once
// The window's own menu.

#include "desktop/theme.h"

#include <functional>

class QMenu;
class QMenuBar;

namespace norvik::desktop {

struct ViewChoices {
  Theme theme = Theme::system;
  bool closingAnimation = true;
  std::function<void(Theme)> chooseTheme;
  std::function<void(bool)> chooseClosingAnimation;
};

/// Adds the menu View behind those of the program: it changes how the window looks and nothing
/// else.
QMenu* addViewMenu(QMenuBar& bar, const ViewChoices& choices);

}  // namespace norvik::desktop
