#pragma once
// The pictures of the guide's page on the manual editor.

#include "desktop/operator.h"

#include <functional>

namespace norvik::desktop {

/// Opens two figures in the editor and looks for something. `take` takes a picture of a window.
void takeEditorPictures(
    Operator& hand, const QString& drive, const std::function<void(const QString&)>& chooseTheme,
    const std::function<void(const QString& name, const QWidget& window)>& take);

}  // namespace norvik::desktop
