#pragma once
// MenuMakeMaster: a figure with its hierarchy and joints, and without its morphs and materials.

#include "front/session.h"

namespace norvik::builders {

/// Hangs the builder on the entries below MenuMakeMaster: five for figures of Poser's own library,
/// and two for the file of the main pane, of which MenuAnyMasterNoFBM takes the valueParm channels
/// out as well. The master is a new file beside its source; one that is there already is never
/// touched. A source that ends too soon leaves the master as far as it came.
void wireMasterCr2(front::Session& session);

}  // namespace norvik::builders
