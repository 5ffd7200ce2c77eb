#pragma once
// The window's own menu.

#include "desktop/theme.h"

#include <functional>

class QMenuBar;

namespace norvik::desktop {

/// Adds the menu View behind those of the program: it changes how the window looks and nothing
/// else.
void addViewMenu(QMenuBar& bar, Theme present, std::function<void(Theme)> choose);

}  // namespace norvik::desktop
