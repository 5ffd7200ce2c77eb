#pragma once
// The passes, by what they work on.

#include "bench_desk.h"
#include "passes.h"

#include <functional>
#include <string>
#include <vector>

namespace norvik::bench {

using Work = std::function<void(Bench& bench)>;

/// A pass that works at a bench of its own.
Pass pass(std::string name, Kind kind, Figure figure, const Work& work);

std::vector<Pass> figurePasses();
std::vector<Pass> channelPasses();
std::vector<Pass> dialPasses();
std::vector<Pass> linkPasses();
std::vector<Pass> builderPasses();
std::vector<Pass> materialPasses();
std::vector<Pass> posePasses();
std::vector<Pass> meshPasses();

}  // namespace norvik::bench
