#pragma once
// The folder that a figure's files wait in until they are installed.

#include "front/opening.h"
#include "text/disk.h"

#include <string>

namespace norvik::install {

/// The staging folder below the program folder.
inline std::string stagingFolder(const front::Opening& opening) {
  return opening.inProgramFolder("\\cr2install");
}

/// A file in a folder.
inline std::string inFolder(std::string_view folder, std::string_view name) {
  return std::string{folder}.append(folder.ends_with('\\') ? "" : "\\").append(name);
}

/// Makes every level of a folder that is missing. What cannot be made shows when a file goes there.
inline void makeEveryLevel(text::Disk& disk, std::string_view folder) {
  text::ignoringErrors([&] { disk.makeFolders(folder); });
}

}  // namespace norvik::install
