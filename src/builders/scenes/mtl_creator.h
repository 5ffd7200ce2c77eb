#pragma once
// MenuMakeMTL: a scene's materials as the material library of an OBJ.

#include "front/session.h"

namespace norvik::builders {

/// Hangs the creator on its menu entry. It writes the materials of the opened scene's first figure
/// through "\mtl.txt" beside the scene, under the path up to its first dot and "mtl", in the place
/// of an older library. The scene does not change.
void wireMtlCreator(front::Session& session);

}  // namespace norvik::builders
