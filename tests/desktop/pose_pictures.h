#pragma once
// The pictures of the pose tools in the guide.

#include "desktop/operator.h"

#include <QString>

#include <functional>

namespace norvik::desktop {

/// Takes a window's picture under a name.
using TakePicture = std::function<void(const QString& name, const QWidget& window)>;

/// Works through the windows of the pose tools on the figure that is open. `folder` is a host
/// folder for two MOR files, which are welded at the end; the first of them is then open.
void takePosePictures(Operator& hand, const QString& folder, const TakePicture& take);

}  // namespace norvik::desktop
