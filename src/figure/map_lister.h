#pragma once
// The lister of a figure's map files, and the list of texture maps that pops up.

#include "front/session.h"

#include <string>

namespace norvik::figure {

/// Puts the main maps of a figure into the path boxes and every distinct texture into
/// ListAllTexMaps, with an alert for each behind the first. It reads from the main material
/// ("skin"; in hair any) to the end of the file, so that the last map of each kind counts. Throws
/// FileError inputPastEnd when the file ends behind a bare textureMap line.
void FindMapLocs(front::Session& session, const std::string& path);

/// Lets the mouse over TextMainTex show ListAllTexMaps, until a click or five seconds hide it.
void wireTextureList(front::Session& session);

}  // namespace norvik::figure
