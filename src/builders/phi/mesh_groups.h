#pragma once
// The groups of a mesh and what a cut would take of them.

#include "text/disk.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::builders {

/// The faces of each group of a mesh, by the whole text behind "g ". A group that comes several
/// times is counted as one.
using MeshGroups = std::map<std::string, std::uint64_t, std::less<>>;

/// Reads a mesh as the cut does. Throws FileError for one that cannot be read.
MeshGroups readMeshGroups(const text::Disk& disk, std::string_view mesh);

/// What a cut of these names takes.
struct CutPreview {
  std::uint64_t groups = 0;
  std::uint64_t faces = 0;
  std::vector<std::string> missing;  ///< names that the mesh does not have
};
CutPreview previewCut(const MeshGroups& groups, const std::vector<std::string>& names);

}  // namespace norvik::builders
