#pragma once
// The flags of a dial, "hidden" and "forceLimits": a digit at the end of a line, turned over where
// it stands in the figure.

#include "front/session.h"
#include "text/line_reader.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace norvik::channels {

/// Where the digit of the line that a field read has just ended stands: in front of CR LF, three
/// bytes back. In a file with other line ends it is another byte, which is then no digit.
std::uint64_t flagBehindWhichStands(const text::LineReader& in);

/// What the operator is told of a flag that was 0 and is now 1, and the other way about.
struct FlagTexts {
  std::string_view wasOff;
  std::string_view wasOn;
};

/// Turns the digit at an offset over in the file of OpenedPath, and returns what there is to tell.
/// A byte other than 0 and 1 stays, and there is nothing to tell.
std::string turnFlag(front::Session& session, std::uint64_t offset, const FlagTexts& texts);

}  // namespace norvik::channels
