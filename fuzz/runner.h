#pragma once
// norvik-run in memory.

#include "headless/runner.h"
#include "input.h"
#include "json_check.h"
#include "memory_host.h"

#include <sstream>

namespace norvik::fuzz {

/// Makes the program folder's drive C and a small Poser on it.
inline void addFolders(MemoryHost& host) {
  host.addFolder("/c/Norvik");
  host.addFolder("/c/Poser/Runtime/Geometries/Man/Left");
}

/// Runs a script and returns what it printed. Each line of it must be a JSON object.
inline std::string runInMemory(MemoryHost& host, const std::string& script,
                               const std::string& commandLine) {
  headless::Options options;
  options.drives = {{'C', "/c"}};
  options.program = "C:\\Norvik";
  options.currentFolder = "C:\\";
  options.open = commandLine;
  options.frontEnd.clock = "2002-03-04 05:06:07";
  std::istringstream in(script);
  std::ostringstream out;
  headless::runScript(options, host, in, out);
  std::istringstream events(out.str());
  for (std::string event; std::getline(events, event);) {
    require(isJsonObject(event), "an event is a JSON object: " + event);
  }
  return out.str();
}

}  // namespace norvik::fuzz
