#pragma once
// The command line of norvik-run.

#include "headless/script_front_end.h"
#include "workbench/command_line.h"

#include <string>
#include <vector>

namespace norvik::headless {

struct Options {
  std::vector<workbench::Drive> drives;  ///< folders without links
  std::string program;
  std::string currentFolder;
  std::string settings;
  std::string history;
  std::string open;
  std::string script = "-";
  ScriptFrontEnd::Options frontEnd;
  bool help = false;
  bool version = false;
};

/// Reads the arguments behind the program's name. Throws workbench::BadOption.
Options parseOptions(const std::vector<std::string>& arguments);

extern const char* const kHelp;

}  // namespace norvik::headless
