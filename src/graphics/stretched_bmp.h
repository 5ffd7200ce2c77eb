#pragma once
// Pictures saved in another size.

#include "graphics/surface.h"
#include "text/disk.h"

#include <string>

namespace norvik::graphics {

/// The largest width and height that a picture is saved with: the size of its file still fits
/// into the header.
inline constexpr int kMostPixels = 32767;

/// Saves a surface, stretched to a size, as a BMP file of 24 bits, row by row: the picture is never
/// in memory as a whole. A pixel is that of the surface which lies at its place. The file is made
/// whole under the name `scratch` first and then takes the place of what has the name `path`, in
/// one safe step. Throws FileError; pictureNotMade (480) for a size that no picture has. What stood
/// under the name stands as it was then, and nothing is left of the scratch file.
void saveStretchedBmp(text::Disk& disk, const Surface& surface, Point size, const std::string& path,
                      const std::string& scratch);

/// The bytes of a file that saveStretchedBmp makes of a size.
std::uint64_t stretchedBmpBytes(Point size);

}  // namespace norvik::graphics
