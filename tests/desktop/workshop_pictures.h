#pragma once
// The pictures of the mesh workshop's views.

#include "desktop/operator.h"
#include "desktop/photographer.h"

#include <functional>

namespace norvik::desktop {

/// With a mesh open: the page of the mesh, and the workshop in all its views.
void takeWorkshopPictures(Operator& hand, const std::function<void(const QString&)>& chooseTheme,
                          const Photographer& camera);

}  // namespace norvik::desktop
