#pragma once
// MenuPZ3Cr2Conv: a scene's figure as a figure file.

#include "front/session.h"

namespace norvik::builders {

/// Hangs the converter on its menu entry. It asks where to put the figure, refuses figures that may
/// not be taken out of a scene, and writes the opened scene without its lights, cameras, ground and
/// settings through "\PZ3.txt" to the chosen name. Without a success "\PZ3.txt" may stay; the scene
/// does not change unless it was chosen itself.
void wirePz3ToCr2(front::Session& session);

}  // namespace norvik::builders
