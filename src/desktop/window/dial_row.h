#pragma once
// The small controls of the dial tools, below the tool strip.

#include "desktop/maker.h"
#include "front/opening.h"

namespace norvik::desktop {

/// A tracking speed, a unique name, the three translation dials and the mirror that waits for its
/// morph: each shows its controls and what to do next while its tool is at work.
QWidget* makeDialRow(Maker& maker, front::Opening& opening, QWidget& parent);

/// What Escape does where no control takes it: the tools that are at work put their controls away.
void putDialToolsAway(Dispatcher& dispatcher, front::Opening& opening);

}  // namespace norvik::desktop
