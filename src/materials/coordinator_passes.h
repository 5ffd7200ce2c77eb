#pragma once
// The two rewrites of the material coordinator.

#include "text/disk.h"

#include <string>
#include <vector>

namespace norvik::materials {

using Names = std::vector<std::string>;

/// Copies a figure without the material blocks whose first line ends in one of the names, and, if
/// wanted, without what the lines with "preset" begin. Only lines behind the figure's welds are
/// tested; blocks end in front of the next line with "material", "preset" or "displayMode".
///
/// The test is blunt. A removed "skin" takes a kept "headskin" along; a line that holds "Material"
/// is never tested, so that such a material stays; Preview alone is safe. Throws FileError
/// inputPastEnd (62) for a figure without welds, or one that ends in a block that goes.
void removeMaterials(text::Disk& disk, const std::string& figure, const std::string& scratch,
                     const Names& removed, bool withPresets);

/// Copies a figure with a default block for each of the names, in front of the first material
/// behind its line "figure", or in front of its "displayMode" line if it has none. Throws FileError
/// inputPastEnd (62) for a figure without these lines.
void addMaterials(text::Disk& disk, const std::string& figure, const std::string& scratch,
                  const Names& added);

}  // namespace norvik::materials
