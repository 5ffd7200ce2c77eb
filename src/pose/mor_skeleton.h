#pragma once
// The skeleton of a MOR file: all morphs of a figure, each with the value 0.

#include "front/session.h"
#include "pose/form_mor.h"

namespace norvik::pose {

inline constexpr std::string_view kMorSkeleton = "\\Mor.txt";

/// Writes the skeleton of the destination's file to "\Mor.txt" and lists its morphs. A file that is
/// neither "cr2" nor "hr2" leaves the form empty and the scratch file as it is.
void writeMorSkeleton(front::Session& session, FormMOR& form);

}  // namespace norvik::pose
