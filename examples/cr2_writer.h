#pragma once

#include "figure.h"
#include "text_file.h"

#include <cstddef>

namespace norvik::examples {

// Writes the whole file. Returns how many morph channels it holds.
std::size_t writeCr2(TextFile& file, const Figure& figure);

// The file's sections, for a scene, which has them too.
void writeStorage(TextFile& file, const Figure& figure);
std::size_t writeActors(TextFile& file, const Figure& figure);
void writeFigureBlock(TextFile& file, const Figure& figure);

}  // namespace norvik::examples
