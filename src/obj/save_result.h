#pragma once
// Where a finished mesh goes.

#include "front/session.h"

#include <optional>
#include <string>
#include <string_view>

namespace norvik::obj {

/// Asks the operator for the place of a finished scratch file, with the save dialog CommonDialog2
/// in the current folder and a proposed name. The scratch file takes the path that he chooses, and
/// that of a file which is there already, in one safe step; a namesake elsewhere stays. Nothing on
/// a cancel; then, and on an error (a read-only file: 75, a missing folder: 76), the scratch file
/// stays where it is.
std::optional<std::string> saveResult(front::Session& session, std::string_view scratch,
                                      std::string_view proposed,
                                      const front::DialogWords& words = {});

}  // namespace norvik::obj
