#pragma once
// The second step of the welding: the selected morphs that the first pose does not have.

#include "front/session.h"
#include "pose/form_pz2_combine.h"

namespace norvik::pose {

inline constexpr std::string_view kWeldedMore = "\\CombineNF.pz2";

/// Adds the selected morphs that no morph of the first pose has met to ListNotFound.
void listMissing(FormPZ2Combine& form);

/// Puts the morphs of ListNotFound into "\Combine.pz2", each directly behind the head of its actor,
/// so that the last one of an actor stands first. One whose actor is not there is left out. Each is
/// a pass of its own, through "\CombineNF.pz2": on an error those before it are in.
void insertMissing(front::Session& session, const FormPZ2Combine& form);

/// Shows ListNotFound, asks whether to print it, and takes it away again.
void tellMissing(front::Session& session, FormPZ2Combine& form);

}  // namespace norvik::pose
