#pragma once
// LabelDonePZ2 in pose mode: a pose of the chosen body parts.

#include "front/session.h"
#include "pose/form_pz2.h"

namespace norvik::pose {

/// Writes the pose to "\Pose.txt" in the program folder, behind what a failed run has left there,
/// and puts it, without a question, in the place of the file whose path is the source's up to its
/// first dot and "New.pz2". It holds the source's first seven lines and all blocks of the chosen
/// parts. Then the form is unloaded. A run-time error leaves the scratch file and the form.
void buildPose(front::Session& session, FormPZ2& form);

}  // namespace norvik::pose
