#pragma once
// The names that a zip file gives its entries. They are a stranger's.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::install {

/// The folders of an entry, and its own name at the end; a slash or a backslash divides them. None
/// for a name that leads, or could lead, out of the folder that it is unpacked into: one from a
/// root, one with a colon, one with a ".." step; and none for a name without a step, or with more
/// of them than any figure's folders are deep.
std::optional<std::vector<std::string>> entrySteps(std::string_view name);

/// A name with a number in front of its ending: "skin.tif" and 2 make "skin (2).tif".
std::string numberedName(std::string_view name, int number);

}  // namespace norvik::install
