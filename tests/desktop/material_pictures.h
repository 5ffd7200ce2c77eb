#pragma once
// The pictures of the material tools and the alternate geometries in the guide.

#include "desktop/operator.h"

#include <QString>

#include <functional>

namespace norvik::desktop {

/// Opens a figure whose materials differ from its OBJ's, made from the one at `figure` in the host
/// folder `folder`, coordinates them, and shows the list of the alternate geometries.
void takeMaterialPictures(Operator& hand, const QString& figure, const QString& folder,
                          const std::function<void(const QString& theme)>& chooseTheme,
                          const std::function<void(const QString& name, QWidget* window)>& take);

}  // namespace norvik::desktop
