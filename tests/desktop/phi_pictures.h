#pragma once
// The pictures of the guide's page on phi files.

#include "desktop/operator.h"

#include <functional>

namespace norvik::desktop {

/// Makes a phi file, and edits it. `take` takes a picture of a window.
void takePhiPictures(Operator& hand, const QString& drive,
                     const std::function<void(const QString&)>& chooseTheme,
                     const std::function<void(const QString& name, const QWidget& window)>& take);

}  // namespace norvik::desktop
