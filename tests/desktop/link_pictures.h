#pragma once
// The pictures of the guide's page on links.

#include "desktop/operator.h"

#include <functional>

namespace norvik::desktop {

using TakePicture = std::function<void(const QString& name, const QWidget& window)>;

/// Walks through a link of the open figure up to its ratio, and looks at the list of links. Nothing
/// is written.
void takeLinkPictures(Operator& hand, const std::function<void(const QString&)>& chooseTheme,
                      const TakePicture& take);

}  // namespace norvik::desktop
