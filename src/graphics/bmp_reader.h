#pragma once
// Pictures out of files.

#include "graphics/surface.h"

#include <optional>
#include <string_view>

namespace norvik::graphics {

/// The picture in the bytes of a BMP file with 24 bits a pixel, uncompressed, its rows in either
/// order; none in those of any other file, and of one that ends in front of its last pixel.
std::optional<Surface> bmpSurface(std::string_view bytes);

}  // namespace norvik::graphics
