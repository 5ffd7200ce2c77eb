#pragma once
// The pictures of the dial tools, and of what the status line says of a result.

#include "desktop/operator.h"

#include <functional>

namespace norvik::desktop {

/// From the main window with a figure open: the lists of the reorder, the frame of hidden dials,
/// and the window after a morph was mirrored. The figure stays as it is.
void takeDialPictures(Operator& hand, const std::function<void(const QString& name)>& take);

}  // namespace norvik::desktop
