#pragma once
// What the dial tools lay over the panes.

#include "desktop/bind/menu_binding.h"
#include "desktop/maker.h"
#include "front/opening.h"

namespace norvik::desktop {

/// The reorder lists and the dials with a tracking speed over the channels, the frame of the hidden
/// dials in the middle, and, from their menu entries, the limits and the twist parameters.
void makeDialCards(Maker& maker, front::Opening& opening, QWidget& over, const MenuTree& menus);

}  // namespace norvik::desktop
