#pragma once
// What the two colour buttons say of the material that they show.

#include "desktop/maker.h"
#include "front/opening.h"

class QAbstractButton;

namespace norvik::desktop {

/// Keeps a swatch's tool tip at the chosen material's name and its colour, from 0 to 255 and as the
/// file has it. `colours` is the list that the swatch is painted from.
void keepSwatchTip(Maker& maker, front::Opening& opening, front::PictureButton& picture,
                   front::ListBox& colours, QAbstractButton& swatch);

}  // namespace norvik::desktop
