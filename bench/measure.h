#pragma once
// A pass beside plain tools on the same file.

#include "passes.h"

#include <string>

namespace norvik::bench {

struct Setup {
  std::string self;    ///< this program, which runs a pass by itself when asked
  std::string folder;  ///< the figures' host folder
  int runs = 7;        ///< of the pass and of each tool, in turn
};

/// Medians of the runs.
struct Result {
  double passTime = 0;  ///< milliseconds, like all times
  double cpTime = 0;
  double toolTime = 0;  ///< of wc or sed; 0 without one
  double memory = 0;    ///< the most megabytes of all runs
};

/// Runs the tools and the pass in turn. What a run writes is deleted before the next one, outside
/// the timing.
Result measure(const Pass& pass, const Setup& setup);

}  // namespace norvik::bench
