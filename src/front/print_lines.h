#pragma once
// Lists on paper.

#include "front/front_end.h"

#include <string>
#include <vector>

namespace norvik::front {

/// Shows the printer dialog, and prints lines in Courier unless it is cancelled; the first
/// `headingLines` of them are the heading, in larger bold letters. Whether it printed.
///
///     printLines(session.front, {"", "", heading, "", "", first, second}, 5);
bool printLines(FrontEnd& front, const std::vector<std::string>& lines,
                std::size_t headingLines = 0);

}  // namespace norvik::front
