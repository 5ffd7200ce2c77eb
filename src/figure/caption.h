#pragma once
// How paths are shown on the pane labels.

#include <string>
#include <string_view>

namespace norvik::figure {

/// A path of more than 42 characters as "..." and its rightmost 45, which for 43 to 45 characters
/// is the "..." and the whole path; any other path as it is.
std::string shortenedPath(std::string_view path);

}  // namespace norvik::figure
