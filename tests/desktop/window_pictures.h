#pragma once
// The pictures of the main window, the question before a save, the history and the guide.

#include "desktop/operator.h"
#include "desktop/photographer.h"

#include <functional>

namespace norvik::desktop {

/// From the empty window to an edited figure. `drive` is the host folder of drive C. A figure is
/// replaced on the way, and replaced back.
void takeWindowPictures(Program& program, Operator& hand, const QString& drive,
                        const std::function<void(const QString&)>& chooseTheme,
                        const Photographer& camera);

}  // namespace norvik::desktop
