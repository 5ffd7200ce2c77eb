#pragma once

#include <filesystem>

namespace norvik::examples {

// Makes the sample set below the folder, laid out as a Poser folder, over whatever an earlier run
// left there. Throws WriteError.
void writeSample(const std::filesystem::path& folder);

}  // namespace norvik::examples
