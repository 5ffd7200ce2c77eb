#pragma once
// The text of a library file that refers to an OBJ instead of holding its geometry.

#include "text/rewrite_pass.h"

#include <string>
#include <string_view>

namespace norvik::builders {

/// Whether a file's geometry is that of a prop, by its extension: pp2 and hr2.
bool isPropFile(std::string_view path);

/// Copies a figure with `reference` in place of both its geometry references, and each actor of the
/// storage section with a new block. Where a reference is missing the new one stands in front of
/// the first actor of its section, the second of which begins at the first actor that comes again.
void referFigure(text::RewritePass& pass, const std::string& reference);

/// Copies a prop file with a new block, which holds `reference`, behind the first prop line of the
/// part that is called `entry`; figure numbers do not count. A file without it, or one that ends in
/// the old block, is inputPastEnd (62).
void referProp(text::RewritePass& pass, std::string_view entry, const std::string& reference);

}  // namespace norvik::builders
