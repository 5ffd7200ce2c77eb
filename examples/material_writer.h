#pragma once

#include "text_file.h"

#include <string>
#include <string_view>
#include <vector>

namespace norvik::examples {

struct MaterialBlock {
  std::string name;
  std::string_view colour;     // red, green, blue from 0 to 1
  std::string_view highlight;  // the same
  int shine = 30;
  std::string map;  // a path with colons; empty for none
};

// The path of a texture of the figure as the library files have it, by drive and colons.
std::string texturePath(const std::string& name);

// The mannequin's five materials; the suit has a map of its own when `suitMap` is not the skin's,
// "tilda".
std::vector<MaterialBlock> figureMaterials(const std::string& suitMap);

// Writes the block that Poser puts first, Preview, and then the others.
void writeMaterials(TextFile& file, const std::vector<MaterialBlock>& materials);

// Writes the preset lines that close a figure's materials. They hold colours alone.
void writePresets(TextFile& file, const std::vector<MaterialBlock>& materials);

}  // namespace norvik::examples
