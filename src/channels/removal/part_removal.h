#pragma once
// The pass that takes one body part out of a figure.

#include "text/rewrite_pass.h"

#include <string>

namespace norvik::channels {

/// Copies the figure of a pass without the blocks of an actor, whose name has its figure number.
///
/// - The first block goes by count: four lines where the third is empty, else five.
/// - Of lines up to the second block that hold the name, as many characters as it has are cut from
///   the end, wherever it stands in them, and "NULL" takes their place. "head:1" is held by
///   "head:10" and "forehead:1" too.
/// - The second block goes up to the next line that begins with "actor" or "figure".
/// - In the figure section the first child entry that names the actor goes, and its own child
///   becomes the child of what stood last; then each weld line that names it goes with the line
///   behind it.
///
/// The reads in the middle of these steps are not guarded: FileError inputPastEnd (62) for an actor
/// that is not in the file and for a section that ends within an entry.
void removePart(text::RewritePass& pass, const std::string& name);

}  // namespace norvik::channels
