#pragma once
// The picture of the empty window.

#include "desktop/maker.h"
#include "front/opening.h"

class QWidget;

namespace norvik::desktop {

/// Shown while ImageSplash is: a picture, the program's name and how to begin.
QWidget* makeSplashPage(front::Opening& opening, QWidget& parent);

}  // namespace norvik::desktop
