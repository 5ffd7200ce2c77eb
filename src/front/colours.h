#pragma once
// Colours that the tools read back as state, in the byte order blue, green, red.

#include "graphics/colour.h"

namespace norvik::front {

using graphics::Colour;
using graphics::colourOf;
using graphics::kBlack;
using graphics::kWhite;

constexpr Colour kWindowGrey = 0xC0C0C0;

constexpr Colour kPathClean = 0xC00000;  ///< a path label whose box is as the file has it
constexpr Colour kPathEdited =
    0x0000FF;  ///< colour 12 of the console palette: the box holds an edit

constexpr Colour kPictureRest = 0xC0E0FF;    ///< a tool picture at rest
constexpr Colour kPictureActive = 0x008000;  ///< a tool picture that is armed or at work

constexpr Colour kListNormal = 0x400000;
constexpr Colour kListWarning = 0x0000FF;

constexpr Colour kDestinationShown = 0xFF0000;  ///< on the file name labels, for the manual editor

}  // namespace norvik::front
