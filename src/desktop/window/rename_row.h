#pragma once
// The small controls of the rename.

#include "desktop/maker.h"
#include "front/opening.h"

class QWidget;

namespace norvik::desktop {

/// The choice between morph and body part and the box for the new name, below PictureRenameMorph.
/// The row says what to do next; its button does what a click on the picture does, Escape puts it
/// away.
QWidget* makeRenameRow(Maker& maker, front::Opening& opening, QWidget& parent);

}  // namespace norvik::desktop
