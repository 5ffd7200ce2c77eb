#pragma once
// PictureJoints: the joint parameters of a body part, from the source's figure into the
// destination's.

#include "front/session.h"

namespace norvik::channels {

/// Hangs the transfer on a left click on PictureJoints: from the body part of the source that is
/// selected in ListChannels to the one of the destination that is selected in ListActors. DestPath
/// is replaced without a question, through "\jointfile.txt", which stays, "\tempjoint.txt" and
/// "\Jnt.txt"; on any error it stays as it was.
void wireJoints(front::Session& session);

}  // namespace norvik::channels
