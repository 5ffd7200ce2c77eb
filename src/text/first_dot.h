#pragma once
// Names of results: a path up to its first dot.

#include <string>
#include <string_view>

namespace norvik::text {

/// The path up to and including its first dot; without a dot the whole path. The first, not the
/// last: a dot in a folder's name cuts there.
std::string_view upToFirstDot(std::string_view path);

/// That with another ending behind the dot: "C:\figures\anna.cr2" and "phi" make
/// "C:\figures\anna.phi", "C:\my.files\anna.cr2" makes "C:\my.phi".
std::string withEnding(std::string_view path, std::string_view ending);

}  // namespace norvik::text
