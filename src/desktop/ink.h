#pragma once
// Colours that text is written in.

#include "front/colours.h"

#include <QColor>
#include <QPalette>

namespace norvik::desktop {

/// A colour of the tools as near to itself as text on the ground of lists and boxes can be read in
/// it.
QColor readableInk(front::Colour colour, const QPalette& palette);

}  // namespace norvik::desktop
