#pragma once

#include "figure.h"

#include <vector>

namespace norvik::examples {

// The twelve part morphs and two full-body morphs of each set, by name.
std::vector<Morph> namedMorphs(MorphSet set);

// Channels other than morphs that follow a dial, in both sets.
std::vector<Link> namedLinks();

}  // namespace norvik::examples
