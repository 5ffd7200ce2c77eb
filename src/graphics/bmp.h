#pragma once
// Pictures as files.

#include "graphics/surface.h"

#include <string>

namespace norvik::graphics {

/// The bytes of a BMP file with 24 bits a pixel, uncompressed: 54 bytes of headers, then the rows
/// from the bottom up, blue, green and red of each pixel, each row filled up to a multiple of 4.
std::string bmpBytes(const Surface& surface);

}  // namespace norvik::graphics
