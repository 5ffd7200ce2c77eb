#pragma once

#include "figure.h"
#include "text_file.h"

namespace norvik::examples {

// Writes a PZ3: the document's settings, a ground, a light, a camera and the figure.
void writeScene(TextFile& file, const Figure& figure);

}  // namespace norvik::examples
