#pragma once
// How many faces a group or a material has.

#include "front/session.h"

#include <cstdint>
#include <functional>
#include <map>
#include <string>

namespace norvik::obj {

using FaceCounts = std::map<std::string, std::uint64_t, std::less<>>;

/// The faces of each group and each material of the mesh in view, by their names; those in front of
/// the first name are nobody's.
struct FaceTally {
  FaceCounts groups;
  FaceCounts materials;
};

/// Counts the face records. An empty tally if they cannot be read.
FaceTally tallyFaces(front::Session& session);

}  // namespace norvik::obj
