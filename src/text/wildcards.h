#pragma once
// The patterns of file names.

#include <string_view>

namespace norvik::text {

/// Whether a file name fits a pattern in which "*" stands for any characters and "?" for any one.
/// Case does not count, and "*.*" fits every name.
bool matchesWildcards(std::string_view fileName, std::string_view wildcards);

}  // namespace norvik::text
