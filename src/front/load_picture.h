#pragma once
// Pictures out of the operator's files.

#include "front/session.h"
#include "graphics/surface.h"

#include <optional>
#include <string_view>

namespace norvik::front {

/// The picture in a file; none if the file is not there, cannot be read, or holds no picture that
/// the front end knows: without a window BMP files of 24 bits, in a window all that its toolkit
/// reads.
std::optional<graphics::Surface> loadPicture(Session& session, std::string_view path);

}  // namespace norvik::front
