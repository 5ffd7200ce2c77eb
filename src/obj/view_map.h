#pragma once
// LabelViewCR2TexMap: the texture map that the figure names.

#include "workshop/workshop.h"

#include <string>
#include <string_view>

namespace norvik::obj {

/// The path of a map by its text in the figure, below Poser's folder (which ends in a backslash): a
/// text that holds "Runtime" counts from there on, any other one is below "Runtime\textures\".
/// Colons are backslashes there, and double quotes do not count.
std::string textureMapPath(std::string_view poserFolder, std::string_view map);

/// A click on LabelViewCR2TexMap shows the map of TextMainTex in PictureZoom, another click the 3D
/// view again. A map that is not there is asked for.
void wireViewMap(Workshop& workshop);

}  // namespace norvik::obj
