#pragma once
// The body parts that a pose can be cut out of.

#include "front/session.h"
#include "pose/form_pz2.h"

namespace norvik::pose {

/// Fills ListActorsPZ2 from form.path. In pose mode these are the parts whose block carries
/// channels, without their figure number; the storage block of a figure, whose third line names an
/// offset, is passed over. In MAT mode they are the `actor` lines. False if the form was left
/// meanwhile.
bool ListTheActorsPZ2(front::Session& session, FormPZ2& form);

}  // namespace norvik::pose
