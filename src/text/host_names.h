#pragma once
// Names of the host: paths divided by slashes.

#include <string>
#include <string_view>

namespace norvik::text {

/// The folder that a name lies in; "." for a name without one.
std::string folderOf(std::string_view name);

/// The last part of a name.
std::string_view lastName(std::string_view name);

/// A name in a folder.
std::string joined(std::string_view folder, std::string_view name);

}  // namespace norvik::text
