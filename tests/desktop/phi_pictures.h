#pragma once
// The pictures of the guide's page on phi files.

#include "desktop/operator.h"
#include "desktop/program.h"

#include <functional>

namespace norvik::desktop {

/// Makes a phi file, edits it, and looks at the tree of the figure's parts. `take` takes a picture
/// of a window.
void takePhiPictures(Program& program, Operator& hand, const QString& drive,
                     const std::function<void(const QString&)>& chooseTheme,
                     const std::function<void(const QString& name, const QWidget& window)>& take);

}  // namespace norvik::desktop
