#pragma once
// The command line of norvik.

#include <string>
#include <utility>
#include <vector>

namespace norvik::desktop {

struct Options {
  std::vector<std::pair<char, std::string>> drives;  ///< letter and absolute host folder
  std::string program;                               ///< the program folder, a system path
  std::string settings;                              ///< a host file
  std::string file;                                  ///< a host path to open at the start
};

/// A command line that cannot be understood, in words for the user.
struct BadOption {
  std::string why;
};

/// Reads the arguments behind the program's name. Throws BadOption.
Options parseOptions(const std::vector<std::string>& arguments);

extern const char* const kHelp;

}  // namespace norvik::desktop
