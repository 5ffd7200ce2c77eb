#pragma once
// Pictures as files.

#include "graphics/surface.h"

#include <cstddef>
#include <string>

namespace norvik::graphics {

/// The bytes of a BMP file with 24 bits a pixel, uncompressed: 54 bytes of headers, then the rows
/// from the bottom up, blue, green and red of each pixel, each row filled up to a multiple of 4.
std::string bmpBytes(const Surface& surface);

/// The first part of such a file, for a picture whose rows follow one by one.
std::string bmpHeaders(int width, int height);
/// How many bytes a row has there.
std::size_t bmpRowSize(int width);

}  // namespace norvik::graphics
