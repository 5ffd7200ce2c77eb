#pragma once
// MenuP3P4Cam: a scene's cameras kept aside and put back.

#include "front/session.h"

#include <string>

namespace norvik::builders {

/// Hangs the convertor on its menu entry. Without a question it goes one of two ways: if the opened
/// scene has a camera file beside it, the scene's cameras are replaced by that file's; else they
/// are saved as that file. Either way through "\cam.txt"; a camera file is never replaced or
/// deleted.
void wireCameraConvertor(front::Session& session);

/// The scene's path up to its first dot, and "cam".
std::string cameraFile(const front::Opening& opening);

}  // namespace norvik::builders
