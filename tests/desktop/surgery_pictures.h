#pragma once
// The pictures of the guide's page on the surgery on meshes.

#include "desktop/operator.h"

#include <functional>

namespace norvik::desktop {

/// Draws a lop box over the mesh in view, adds a second mesh and moves it, and looks at the listing
/// of a figure that is open. `take` takes a picture of a window.
void takeSurgeryPictures(
    Operator& hand, const QString& drive, const std::function<void(const QString&)>& chooseTheme,
    const std::function<void(const QString& name, const QWidget& window)>& take);

}  // namespace norvik::desktop
