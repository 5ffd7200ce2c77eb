#pragma once
// The command line of norvik-run.

#include "headless/script_front_end.h"

#include <string>
#include <utility>
#include <vector>

namespace norvik::headless {

struct Options {
  std::vector<std::pair<char, std::string>> drives;  ///< letter and absolute host folder
  std::string program;
  std::string currentFolder;
  std::string settings;
  std::string open;
  std::string script = "-";
  ScriptFrontEnd::Options frontEnd;
  bool help = false;
  bool version = false;
};

/// A command line that cannot be understood, in words for the user.
struct BadOption {
  std::string why;
};

/// Reads the arguments behind the program's name. Throws BadOption.
Options parseOptions(const std::vector<std::string>& arguments);

extern const char* const kHelp;

}  // namespace norvik::headless
