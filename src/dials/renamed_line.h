#pragma once
// A line of a figure whose dial or body part gets its other name.

#include <optional>
#include <string>
#include <string_view>

namespace norvik::dials {

/// Which way a file is renamed.
enum class Direction { toFriendly, toGetStringRes };

/// What every line that changes holds.
std::string_view tokenOf(Direction direction);

/// What becomes of a line; nothing if it stays as it is.
std::optional<std::string> renamedLine(Direction direction, std::string_view line);

}  // namespace norvik::dials
