#include "tools/map_path.h"

#include "text/columns.h"

#include <algorithm>

namespace norvik::tools {

namespace {

/// Colons as the backslashes that they stand for. One at position 2 goes with the character in
/// front of it: a drive's letter, or the quote that opens the text.
std::string belowPoser(std::string_view map) {
  constexpr std::size_t kDrive = 2;
  if (text::leftmost(map, kDrive).ends_with(':')) map.remove_prefix(kDrive);
  if (map.ends_with('"')) map.remove_suffix(1);
  return text::replaced(map, ':', '\\');
}

}  // namespace

std::string mapPath(const text::Disk& disk, std::string_view poserFolder, std::string_view map) {
  if (!text::holds(map, "untime")) return std::string{map};
  const std::string parts = belowPoser(map);
  std::string path{poserFolder};
  path += parts;
  const std::size_t runtime = std::min(parts.find("Runtime"), parts.find("runtime"));
  if (runtime == std::string::npos || disk.exists(path)) return path;
  std::string fromRuntime{poserFolder};
  fromRuntime += std::string_view{parts}.substr(runtime);
  return disk.exists(fromRuntime) ? fromRuntime : path;
}

}  // namespace norvik::tools
