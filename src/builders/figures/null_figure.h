#pragma once
// menuNullFig: a figure that loads no geometry.

#include "front/session.h"

namespace norvik::builders {

/// Hangs the builder on menuNullFig. It works on the cr2 file that was opened last and writes
/// "_Null.cr2" behind the path up to its first dot, over an older one; the figure itself is only
/// read. A file that ends too soon leaves the result as far as it came.
void wireNullFigure(front::Session& session);

}  // namespace norvik::builders
