#pragma once
// PictureChannelReorderDone: the morphs of an actor in a new order.

#include "front/session.h"

namespace norvik::channels {

/// Hangs the reorder on a left click on PictureChannelReorderDone. The picked channels and those
/// that were not picked are placed one behind the other at the top of the actor's block, and what
/// followed the last one in the figure follows it again: a morph that was placed in front of it and
/// stood behind it comes twice. The result goes through "\Reorder.cr2" into the file that a save
/// dialog gives; after a cancel it stays there. Without a picked channel the lists only go away.
void wireReorder(front::Session& session);

}  // namespace norvik::channels
