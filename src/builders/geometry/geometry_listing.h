#pragma once
// The alternate geometries that an actor has already.

#include "text/disk.h"

#include <string>
#include <string_view>
#include <vector>

namespace norvik::builders {

struct ListedGeometry {
  std::string name;
  std::string obj;  ///< as the file names it, below Poser's folder
};

/// The geometries that the tool would count for an actor of a figure, or a prop of a prop file, in
/// the order of the dial. None for a file without it. Throws FileError for a file that cannot be
/// read.
std::vector<ListedGeometry> listGeometries(const text::Disk& disk, std::string_view path,
                                           std::string_view actor);

}  // namespace norvik::builders
