#pragma once
// Colours as the figure files write them.

#include "graphics/colour.h"

#include <array>
#include <string>

namespace norvik::figure {

/// A colour as its three values in decimal, divided by letters: 255, 128 and 1 are "255G128B1".
std::string LongToHexS(graphics::Colour colour);

/// A value from 0 to 255 as a file has it: divided by 256, never by 255, with all its digits, the
/// blank of the sign in front and no zero before the point. 255 is " .99609375", 128 " .5", 0 " 0".
std::string fileValue(unsigned value);

/// Red, green and blue of a colour, each as fileValue writes it.
std::array<std::string, 3> fileValues(graphics::Colour colour);

}  // namespace norvik::figure
