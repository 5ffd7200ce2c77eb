#pragma once
// What a tool leaves behind, for an operator who wants to go on with it.

#include <string>

namespace norvik::front {

struct FinishedFile {
  std::string path;  ///< a system path
  /// It lies in the program folder, where the tool's next run writes it anew: who wants to keep it
  /// takes a copy.
  bool isScratch = false;
  std::string note{};  ///< what the operator should know of it; empty for nothing
  // Of a body part that a tool has displaced: what it is at rest.
  std::string part{};      ///< without its figure number; empty for all other files
  std::string geometry{};  ///< the OBJ that holds it
};

}  // namespace norvik::front
