#pragma once
// A command in a process of its own.

#include <string>
#include <vector>

namespace norvik::bench {

struct Cost {
  double milliseconds = 0;  ///< from the start of the process to its end
  double megabytes = 0;     ///< its peak memory
};

/// Runs a command with its output in a file, or thrown away. Throws std::runtime_error if it does
/// not succeed.
Cost runCommand(const std::vector<std::string>& command, const std::string& output = "/dev/null");

}  // namespace norvik::bench
