#pragma once
// A tool during which the host fails.

#include "support/faulty_host.h"

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace norvik::tests {

/// What a tool is run on and what it makes. Paths are below drive C, with slashes. Behind the first
/// seven stands what few tools need.
struct ToolUnderFaults {
  std::string name;
  std::map<std::string, std::string> files;
  std::string opening;  ///< script lines in front of the faults
  std::string running;  ///< those during which the host fails
  std::string target;   ///< the file that the tool replaces or makes; empty: none of the operator's
  std::string result;   ///< what it becomes; empty: what it becomes on a host that does not fail
  std::set<std::string> deleted;    ///< results of other runs that the tool takes away first
  std::string done{};               ///< words that it says only of a target that is new
  std::set<std::string> scratch{};  ///< its scratch files outside the program folder
  std::string putAway{};            ///< a scratch file that does not stay behind a failure
  std::string rescued{};            ///< the scratch file that keeps the result if a save fails
  bool silent = false;              ///< it does not tell of a save that fails
  bool inPlace = false;             ///< it changes the target's bytes where they stand
};

/// A tool in the table of those that are tested so. It is made when it is its turn: its files may
/// be large.
struct FaultRow {
  std::string name;
  std::function<ToolUnderFaults()> make;
};

/// How the host fails.
struct HostFault {
  std::string name;
  Fault fault;
  int error;
  bool separateFolders;
  bool history = false;  ///< whether old versions are kept
};

/// Errors, a full medium, a death and a loss of power, with the program folder on the target's file
/// system and on another; and a death while old versions are kept.
std::vector<HostFault> allHostFaults();

/// Runs the tool with the fault at operation N, for each N at which it can make a difference. What
/// ever fails, and whenever: the target is the old or the new one, complete; the operator is told
/// if it is the old one; no other file outside the program folder changes or appears; and who keeps
/// old versions has the one that a dead tool replaced or deleted.
void expectOldOrNew(const ToolUnderFaults& tool, const HostFault& fault);

}  // namespace norvik::tests
