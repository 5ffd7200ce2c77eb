#pragma once
// MenuPoseFile and menuMatFile: the form on which poses and MAT files are put together.

#include "front/session.h"
#include "pose/form_pz2.h"

namespace norvik::pose {

/// Checks the type of the destination's file, and fills the lists; a file of another type unloads
/// the form. Runs when the form is on view.
void LoadIt(front::Session& session, FormPZ2& form);

/// Hangs the form on its two menu entries: MenuPoseFile shows it in pose mode, menuMatFile in MAT
/// mode. A double click moves a body part to the chosen ones, without a way back but
/// LabelCancelPZ2. Nothing is written before LabelDonePZ2.
void wirePz2Editor(front::Session& session, FormPZ2& form);

}  // namespace norvik::pose
