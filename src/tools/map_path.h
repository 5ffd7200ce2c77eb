#pragma once
// Where the texture map lies that a figure names.

#include "text/disk.h"

#include <string>
#include <string_view>

namespace norvik::tools {

/// The path of a map by its text in the figure. One that goes through a Runtime folder is looked
/// for below Poser's folder (which ends in a backslash), with all parts behind its drive or, if no
/// file is there but one is at its part from "Runtime" on, with that; any other text is the path
/// itself.
std::string mapPath(const text::Disk& disk, std::string_view poserFolder, std::string_view map);

}  // namespace norvik::tools
