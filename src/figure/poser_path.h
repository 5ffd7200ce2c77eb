#pragma once
// Colon paths of figure files as paths of the disk.

#include "text/columns.h"

#include <string>
#include <string_view>

namespace norvik::figure {

/// The text with its colons as the dividers of a path.
inline std::string asDiskPath(std::string_view colonPath) {
  return text::replaced(colonPath, ':', '\\');
}

/// What a line names below a folder: the folder, and the line from the first `cut` on with its
/// colons as backslashes; empty if the line lacks the cut. The folder ends in a backslash, as
/// Poser's does in the settings:
///
///     pathBelow("C:\\Poser\\", "textureMap C:Runtime:textures:a.tif", "Runtime")
///     pathBelow("C:\\Poser\\Runtime\\", "figureResFile :Runtime:Geometries:a:a.obj", "Geom")
inline std::string pathBelow(std::string_view folder, std::string_view line, std::string_view cut) {
  const std::size_t at = text::column(line, cut);
  if (at == 0) return {};
  return std::string{folder} + asDiskPath(text::from(line, at));
}

}  // namespace norvik::figure
