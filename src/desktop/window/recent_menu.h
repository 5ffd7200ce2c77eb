#pragma once
// The recent files in the menu.

#include "desktop/bind/menu_binding.h"
#include "front/opening.h"

namespace norvik::desktop {

/// Gives the entry of the recent files a menu with the files of ListMRU, the newest first, and
/// above them the entry's own act, the list itself. A file that is chosen there is clicked in
/// ListMRU.
void addRecentMenu(MenuTree& menus, Dispatcher& dispatcher, front::Opening& opening);

}  // namespace norvik::desktop
