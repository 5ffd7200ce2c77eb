#pragma once
// A workbench's insides in memory, for a routine that is called by itself.

#include "front/session.h"
#include "memory_host.h"
#include "quiet_front_end.h"

#include <functional>

namespace norvik::fuzz {

/// Drive C holds one figure and the folders of a small Poser; the program folder is C:\Norvik.
struct Desk {
  Desk(std::string_view extension, std::string_view text)
      : path("C:\\f." + std::string{extension}), hostName("/c/f." + std::string{extension}) {
    host.addFolder("/c/Norvik");
    host.addFolder("/c/Poser/Runtime/Geometries/Man/Left");
    host.addFile(hostName, text);
    disk.mount('C', "/c");
    opening.ProgramFolder = "C:\\Norvik";
    opening.OpenedPath = path;
    settings.set("Startup", "PLoc", "C:\\Poser\\");
  }

  /// Runs a routine; the number of the error that ended it, 0 for none.
  static int run(const std::function<void()>& routine) {
    try {
      routine();
      return 0;
    } catch (const text::FileError& error) {
      return static_cast<int>(error.number());
    }
  }

  std::string path;      ///< the figure's system path
  std::string hostName;  ///< the host's name for it
  MemoryHost host;
  text::Disk disk{host};
  front::Settings settings;
  front::Opening opening;
  QuietFrontEnd front;
  front::Session session{front, disk, settings, opening};
};

}  // namespace norvik::fuzz
