#pragma once
// The control ratio between two joints.

#include "front/list_box.h"

#include <string>
#include <string_view>

namespace norvik::erc {

/// The range of the slaved channel divided by that of the master, as the shortest text of the
/// single-precision value. The limits stand in a list like FormECM's ListMinMax, where a channel is
/// found by any part of its text; one that is not there has 0 and 0. A master's limit of 0 counts
/// as 1, and master limits that are equal then are divisionByZero (11).
std::string ratioOfJoints(const front::ListBox& limits, std::string_view master,
                          std::string_view slaved);

}  // namespace norvik::erc
