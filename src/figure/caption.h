#pragma once
// How files are shown on the pane labels.

#include "text/disk.h"

#include <string>
#include <string_view>

namespace norvik::figure {

/// A path of more than 42 characters as "..." and its rightmost 45, which for 43 to 45 characters
/// is the "..." and the whole path; any other path as it is.
std::string shortenedPath(std::string_view path);

/// A file's size as LabelFileSize shows it: a blank, the number, " bytes". Throws what Disk::size
/// throws.
std::string sizeInBytes(const text::Disk& disk, std::string_view path);

}  // namespace norvik::figure
