#pragma once
// The passes that write a new name into a figure.

#include "text/rewrite_pass.h"

#include <string>
#include <string_view>

namespace norvik::channels {

/// Copies the figure with a morph's new name in the entry line and the name line behind it. The
/// first line of the file that equals the entry line counts, whatever its actor; nothing else that
/// speaks of the morph changes. Throws FileError inputPastEnd (62) if there is none.
void renameMorph(text::RewritePass& pass, std::string_view oldName, std::string_view newName);

/// A body part's old and new name, each with the figure number.
struct PartNames {
  std::string from;
  std::string to;
};

/// Copies the figure with a body part's new name in each line that holds the old one: from its
/// first occurrence on the line is the new name, so that what stood behind it is lost. "head:1" is
/// held by "forehead:1" and "head:10" too.
void renamePart(text::RewritePass& pass, const PartNames& names);

}  // namespace norvik::channels
