#pragma once
// What the window says of a tool before it is used.

#include "desktop/bind/list_view.h"
#include "desktop/bind/menu_binding.h"
#include "front/session.h"

namespace norvik::desktop {

/// Lets the entry of the camera convertor say which way it would go now, each time its menu opens.
void hintAtCameras(const MenuTree& menus, front::Session& session);

/// Lets the mouse over a body part of the list tell which geometries it has already, and whether
/// they are on the disk.
void hintAtGeometries(ListView& view, front::Session& session);

}  // namespace norvik::desktop
