#pragma once
// A texture template without its paper.

#include "front/session.h"
#include "graphics/surface.h"

#include <string>

namespace norvik::desktop {

/// Saves a template, stretched to `pixels` each way, as a PNG: the lines black and opaque, the
/// ground transparent, so that it can lie over a map that is painted below. The file is made whole
/// in the program folder first and then takes the place of what has the name. Throws FileError, of
/// which pictureNotMade (480) is for a size that memory does not hold.
void saveTransparentTemplate(front::Session& session, const graphics::Surface& surface, int pixels,
                             const std::string& path);

}  // namespace norvik::desktop
