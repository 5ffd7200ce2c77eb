#pragma once
// PictureViewChannels: the channels of one body part.

#include "front/session.h"

namespace norvik::channels {

/// Hangs the view of one part on a left click on PictureViewChannels. It lists the channels of the
/// part that is selected in ListActors, from the source file while one is open, and shows the tools
/// that work on them; a second click goes back to all channels. No file changes.
void wirePartView(front::Session& session);

}  // namespace norvik::channels
