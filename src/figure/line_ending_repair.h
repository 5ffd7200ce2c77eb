#pragma once
// The conversion of line endings that a figure's readers do not expect.

#include "text/byte_reader.h"
#include "text/line_writer.h"

#include <string>
#include <string_view>

namespace norvik::figure {

/// Copies a text with CR LF endings. The source is taken in blocks of 2048 bytes, and a line ends
/// at an LF while the bytes at hand hold one; only without any LF do CRs end lines. Two oddities
/// come of it: of two LFs in a row one is lost, so blank lines of an LF file vanish, and a CR LF
/// that a block border cuts can yield a blank line. Text behind the last line end is not written.
void LineEndingRepair(text::ByteReader& source, text::LineWriter& scratch);

}  // namespace norvik::figure
