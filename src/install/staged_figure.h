#pragma once
// The CR2 that is to be installed.
//
// It waits in the staging folder, or it is unpacked into it out of a zip file that the operator
// picks, by the unzipper that the settings name or by Norvik itself. A zip file that has it inside
// folders gives none; a window then offers to unpack the file without its folders.

#include "front/session.h"

#include <optional>
#include <string>

namespace norvik::install {

/// Its name in the staging folder; none on a cancel, and where there is none, which the operator
/// is told.
std::optional<std::string> stagedFigure(front::Session& session);

}  // namespace norvik::install
