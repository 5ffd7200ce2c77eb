#pragma once
// Where a tool's finished result goes.

#include "front/session.h"

#include <optional>
#include <string>
#include <string_view>

namespace norvik::figure {

/// Asks the operator for it: the save dialog in the current folder, with a proposed name, and with
/// what is saved as its title. Nothing on a cancel.
std::optional<std::string> chooseSavePath(front::Session& session, std::string_view proposed,
                                          std::string_view purpose = "Save the figure as");

}  // namespace norvik::figure
