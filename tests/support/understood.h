#pragma once
// Command lines in tests.

#include "workbench/command_line.h"

#include <string>
#include <vector>

namespace norvik::tests {

/// Whether the arguments are understood by the reader of one program's command line.
template <typename Options>
bool understood(Options (*parse)(const std::vector<std::string>&),
                const std::vector<std::string>& arguments) {
  try {
    parse(arguments);
  } catch (const workbench::BadOption&) {
    return false;
  }
  return true;
}

}  // namespace norvik::tests
