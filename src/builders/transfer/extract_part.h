#pragma once
// The first half of the body part transfer: a body part out of the source.

#include "front/session.h"

#include <string_view>

namespace norvik::builders {

/// Carries the extracted body part from one half of the transfer to the other, in the program
/// folder.
inline constexpr std::string_view kBodyPartFile = "\\bp.txt";

/// Hangs the extraction on a click in ListActors, for as long as the mode value is 69; nothing in
/// the workbench sets that, scripts do. The clicked part's two blocks go from the file opened last
/// to "\bp.txt", and the mode value becomes 70. A part with its geometry in the figure is refused;
/// a figure without the second block throws FileError inputPastEnd (62).
void wireExtractPart(front::Session& session);

}  // namespace norvik::builders
