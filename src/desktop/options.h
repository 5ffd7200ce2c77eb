#pragma once
// The command line of norvik.

#include "workbench/command_line.h"

#include <string>
#include <vector>

namespace norvik::desktop {

struct Options {
  std::vector<workbench::Drive> drives;  ///< folders without ".."
  std::string program;                   ///< the program folder, a system path
  std::string settings;                  ///< a host file
  std::string file;                      ///< to open at the start, a path of either kind
};

/// Reads the arguments behind the program's name. Throws workbench::BadOption.
Options parseOptions(const std::vector<std::string>& arguments);

extern const char* const kHelp;

}  // namespace norvik::desktop
