#pragma once
// ListTwistRemove and ListTwistRestore: twist parameters commented out and brought back.

#include "front/session.h"

namespace norvik::channels {

/// Hangs the two tools on a click on an item of their lists. The removal marks the lines of
/// OpenedPath that hold one of the part's six channels: the tab in front of each becomes a "*". The
/// restoring turns it back. Both change single bytes where they stand, so that the file keeps its
/// size, and read the whole file before they change the first. Of "Shoulder" only two lines are
/// dealt with in one go, of "Thigh" six, and so of "Hip (as alternate Thigh name)" when it is
/// restored. The scratch files "\read*.txt" of earlier versions are swept away.
void wireTwist(front::Session& session);

}  // namespace norvik::channels
