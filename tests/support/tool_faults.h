#pragma once
// A tool during which the host fails.

#include "support/faulty_host.h"

#include <map>
#include <set>
#include <string>
#include <vector>

namespace norvik::tests {

/// What a tool is run on and what it makes. Paths are below drive C, with slashes.
struct ToolUnderFaults {
  std::string name;
  std::map<std::string, std::string> files;
  std::string opening;            ///< script lines in front of the faults
  std::string running;            ///< those during which the host fails
  std::string target;             ///< the file that the tool replaces or makes
  std::string result;             ///< what it becomes
  std::set<std::string> deleted;  ///< results of other runs that the tool takes away first
};

/// How the host fails.
struct HostFault {
  std::string name;
  Fault fault;
  int error;
  bool separateFolders;
};

/// Errors, a full medium, a death and a loss of power, with the program folder on the target's file
/// system and on another.
std::vector<HostFault> allHostFaults();

/// Runs the tool with the fault at operation N for N = 1, 2, ... until none is met. Whatever fails,
/// and whenever: the target is the old or the new file, complete; the operator is told if it is the
/// old one; no other file outside the program folder changes or appears.
void expectOldOrNew(const ToolUnderFaults& tool, const HostFault& fault);

}  // namespace norvik::tests
