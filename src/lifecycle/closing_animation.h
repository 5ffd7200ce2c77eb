#pragma once
// The tiles that close over the main form at the exit.

#include "front/session.h"

namespace norvik::lifecycle {

/// Hides the form's controls in turn, shows PictureTile and tiles its image across the form, column
/// by column, TimerTileClose pacing each column. A front end without a screen draws nothing and
/// does not wait.
void playClosingAnimation(front::Session& session);

/// Lets TimerTileClose end the wait for the next column.
void wireClosingAnimation(front::Session& session);

}  // namespace norvik::lifecycle
