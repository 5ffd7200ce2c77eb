#pragma once

#include "figure.h"
#include "text_file.h"

#include <string>
#include <vector>

namespace norvik::examples {

// A dial that the pose turns away from its rest.
struct PoseSetting {
  std::string actor;
  std::string channel;
  std::string value;
};

// Writes a PZ2 for the figure: every dial of every actor, each with its one key.
void writePose(TextFile& file, const Figure& figure, const std::vector<PoseSetting>& settings);

// The sample's pose: Tilda waves.
std::vector<PoseSetting> wavePose();

}  // namespace norvik::examples
