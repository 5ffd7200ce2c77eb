#pragma once
// Lines that go from a reader to a writer as they are: what a pass does between the places where it
// changes something.

#include "text/line_reader.h"
#include "text/line_writer.h"

#include <cstdint>

namespace norvik::text {

/// Copies the lines that hold none of the filter's tokens; the next read is at one that may.
void copyLines(LineReader& in, LineWriter& out, const LineFilter& filter);

/// Copies the next `count` lines, or those that are left.
void copyNext(LineReader& in, LineWriter& out, std::uint64_t count);

/// Copies all that is left, the rest of a line that was read in part first.
void copyRest(LineReader& in, LineWriter& out);

}  // namespace norvik::text
