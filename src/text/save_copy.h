#pragma once
// A copy of a file in the place of another.

#include "text/disk.h"

#include <string_view>

namespace norvik::text {

/// Copies a file byte for byte and puts the copy in the target's place in one safe step; the file
/// itself stays. `scratch` is the name that the copy has until it is whole. A target that is the
/// file itself stays as it is. Throws FileError; the target is then as it was.
void saveCopy(Disk& disk, std::string_view path, std::string_view target, std::string_view scratch);

}  // namespace norvik::text
