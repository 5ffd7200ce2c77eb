#pragma once
// How many faces a group or a material has.

#include "front/session.h"
#include "obj/name_side.h"

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>

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

/// The faces of a side by the names that its lists show: those of a renamed group stand under its
/// new name. Blanks at a name's end do not count, since the records have none.
FaceCounts facesOnShow(front::Session& session, const NameSide& side);
/// How many of them a name on show has.
std::uint64_t facesOf(const FaceCounts& counts, std::string_view name);

}  // namespace norvik::obj
