#pragma once
// Pictures between the tools' surfaces and the toolkit's images.

#include "graphics/surface.h"

#include <QImage>

#include <optional>
#include <string_view>

namespace norvik::desktop {

/// The image that stands on a surface's own pixels; good for as long as the surface does not
/// change.
QImage imageOn(const graphics::Surface& surface);

graphics::Surface surfaceOf(const QImage& image);

/// The picture in the bytes of a file of any format that the toolkit knows, turned as a camera says
/// it was held; none if it knows none in them.
std::optional<graphics::Surface> decodedPicture(std::string_view bytes);

}  // namespace norvik::desktop
