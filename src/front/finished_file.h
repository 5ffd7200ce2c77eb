#pragma once
// What a tool leaves behind, for an operator who wants to go on with it.

#include <string>

namespace norvik::front {

struct FinishedFile {
  std::string path;  ///< a system path
  /// It lies in the program folder, where the tool's next run writes it anew: who wants to keep it
  /// takes a copy.
  bool isScratch = false;
};

}  // namespace norvik::front
