#pragma once
// Looking at the screen itself.

#include "front/front_end.h"

namespace norvik::desktop {

/// Whether the system lets a program look at the screen: X11 does, Wayland does not.
bool mayLookAtScreen();

/// What the mouse pointer is at; nothing where no program may look.
std::optional<front::ScreenPoint> screenPointer();

/// What a part of the pointer's screen shows, each of its pixels a square of the size.
graphics::Surface enlargedScreen(const front::ScreenPart& part, int width, int height);

}  // namespace norvik::desktop
