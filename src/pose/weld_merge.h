#pragma once
// The first step of the welding: the morphs that both poses have.

#include "front/session.h"
#include "pose/form_pz2_combine.h"

namespace norvik::pose {

inline constexpr std::string_view kWelded = "\\Combine.pz2";

/// Copies the first pose to "\Combine.pz2". A morph whose name is part of a selected one's name
/// takes that one's key line; the first in the list wins. Names alone count: a morph of one name in
/// two actors gets one value.
void mergePoses(front::Session& session, FormPZ2Combine& form);

}  // namespace norvik::pose
