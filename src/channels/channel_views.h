#pragma once
// The two views of a figure's channels in ListChannels.

#include "front/session.h"

#include <string>

namespace norvik::channels {

/// Adds the channels of all actors to ListChannels, and to ListChannelsReorder one hidden item for
/// each morph. The file is the source's while a source is open, else the destination's; `path` is
/// looked at for its extension alone. The list's head items are the caller's. A scan that meets the
/// end of the file is over; a file that cannot be opened is thrown.
void ViewChannels(front::Session& session, const std::string& path);

/// Hangs ViewChannels where the listers call it, and the view of one part on PictureViewChannels.
void wireChannelViews(front::Session& session);

}  // namespace norvik::channels
