#pragma once
// MenuMor: a MOR file, a pose that sets the dials of a figure's morphs.

#include "front/session.h"
#include "pose/form_mor.h"

namespace norvik::pose {

/// Hangs FormMOR on MenuMor. Its load writes the skeleton "\Mor.txt" in the program folder. A click
/// on a morph shows its value in TextValue, and Enter there gives the value to all morphs of that
/// name. LabelDone writes "\Mor1.txt", deletes the skeleton and asks for the file that the result
/// takes the place of. A save that fails says nothing: the target is then as it was, and the
/// scratch file stays, as it does after a Cancel. LabelCancel leaves the skeleton.
void wireMorBuilder(front::Session& session, FormMOR& form);

}  // namespace norvik::pose
