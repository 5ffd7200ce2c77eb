#pragma once
// Labels that are clicked, as push buttons.

#include "desktop/maker.h"

class QPushButton;

namespace norvik::desktop {

/// A push button with a label's caption and clicks. It is not the window's default one.
QPushButton& makeLabelButton(Maker& maker, front::Label& label, QWidget& parent);

}  // namespace norvik::desktop
