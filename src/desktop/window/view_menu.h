#pragma once
// The window's own menu.

#include "desktop/theme.h"

#include <functional>

class QMenu;
class QMenuBar;

namespace norvik::desktop {

/// Adds the menu View behind those of the program: it changes how the window looks and nothing
/// else.
QMenu* addViewMenu(QMenuBar& bar, Theme present, std::function<void(Theme)> choose);

}  // namespace norvik::desktop
