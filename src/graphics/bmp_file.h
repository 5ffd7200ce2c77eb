#pragma once
// Pictures saved for the operator.

#include "graphics/surface.h"
#include "text/disk.h"

#include <string>

namespace norvik::graphics {

/// Saves a surface as a BMP file (see bmpBytes). The file is made whole under the name `scratch`
/// first and then takes the place of what has the name `path`, in one safe step. Throws FileError;
/// what stood under the name stands as it was then, and nothing is left of the scratch file.
void saveBmp(text::Disk& disk, const Surface& surface, const std::string& path,
             const std::string& scratch);

}  // namespace norvik::graphics
