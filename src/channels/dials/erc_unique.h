#pragma once
// menuERCUnique: a figure name of its own for the ERC links of a file.

#include "front/session.h"

namespace norvik::channels {

/// Hangs the warning on menuERCUnique and the change on Enter in TextERCUnique: in a copy of
/// OpenedPath, beside it, with "_Unique.cr2" for what follows the last point, the typed name takes
/// the place of "Figure " and of the rest of its line. An older copy is replaced when the new one
/// is whole; OpenedPath does not change. Escape puts the box away.
void wireErcUnique(front::Session& session);

}  // namespace norvik::channels
