#pragma once
// Names that tools make out of a file's path. They cut at the first dot, not at the last: a dot in
// a folder's name cuts there.

#include "text/columns.h"

#include <string>
#include <string_view>

namespace norvik::text {

/// The path up to and including its first dot, and an ending: "C:\x\scene.pz3" and "mtl" make
/// "C:\x\scene.mtl". A path without a dot is taken whole.
inline std::string throughFirstDot(std::string_view path, std::string_view ending = {}) {
  return std::string{leftmost(path, before(path, ".").size() + 1)}.append(ending);
}

/// The path in front of its first dot, and an ending: "C:\x\scene.pz3" and "-AVI.pp2" make
/// "C:\x\scene-AVI.pp2".
inline std::string beforeFirstDot(std::string_view path, std::string_view ending = {}) {
  return std::string{before(path, ".")}.append(ending);
}

}  // namespace norvik::text
