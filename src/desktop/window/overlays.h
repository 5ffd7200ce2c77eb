#pragma once
// The cards of the main window.

#include "desktop/maker.h"
#include "front/opening.h"

class QWidget;

namespace norvik::desktop {

/// Makes the cards over the panes: the recent files, the texture list over its box, the results of
/// the bracket check, the hiding of dials and the notepad.
void makeOverlays(Maker& maker, front::Opening& opening, QWidget& over);

}  // namespace norvik::desktop
