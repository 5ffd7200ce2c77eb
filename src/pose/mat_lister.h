#pragma once
// The materials that a MAT file can be made of.

#include "front/session.h"
#include "pose/form_pz2.h"

namespace norvik::pose {

/// Fills ListMaterialsMAT and ListMATColors from form.path, a figure, a scene or hair. Names stand
/// once each; "Preview" and, in a figure or scene, a material of a prop's name do not. In hair the
/// first `prop` line goes to form.propLine. A file without the lines to begin at is FileError 62.
void ListMaterialsMATPZ2(front::Session& session, FormPZ2& form);

/// The same for a prop.
void ListMaterialsPP2MATPZ2(front::Session& session, FormPZ2& form);

}  // namespace norvik::pose
