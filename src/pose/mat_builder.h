#pragma once
// LabelDonePZ2 in MAT mode: a pose that holds nothing but materials.

#include "front/session.h"
#include "pose/form_pz2.h"

namespace norvik::pose {

/// Writes the MAT file to "\Mat.pz2" in the program folder and asks for the file that it takes the
/// place of; then the form is unloaded, saved or not. With nothing chosen the operator is told so,
/// once the scratch file is written, and the form stays. A save that fails says nothing: the target
/// is then as it was, and the scratch file stays, as it does after a Cancel.
void MakeMat(front::Session& session, FormPZ2& form);

/// Hangs both builders on LabelDonePZ2.
void wireDonePZ2(front::Session& session, FormPZ2& form);

}  // namespace norvik::pose
