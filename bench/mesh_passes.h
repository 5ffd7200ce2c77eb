#pragma once
// The rewrite passes over a mesh, for which the figure stands.

#include "bench_desk.h"

namespace norvik::bench {

void renameNames(Bench& bench);
void saveGroups(Bench& bench);

}  // namespace norvik::bench
