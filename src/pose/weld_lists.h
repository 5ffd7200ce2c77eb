#pragma once
// The morph settings of the two poses, read into the welder's lists.

#include "front/session.h"
#include "pose/form_pz2_combine.h"

namespace norvik::pose {

/// Lists the morphs of the receiving file, LabelFileFirst, with their key lines.
void listFirstFile(front::Session& session, FormPZ2Combine& form);

/// Adds the morphs of the giving file, LabelFileSecond, to its lists.
void listSecondFile(front::Session& session, FormPZ2Combine& form);

}  // namespace norvik::pose
