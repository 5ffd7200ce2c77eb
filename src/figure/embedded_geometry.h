#pragma once
// Geometry that stands in a figure file itself.

#include "text/line_reader.h"
#include "text/line_writer.h"

namespace norvik::figure {

/// What the line above the geometry says.
inline constexpr std::string_view kEmbeddedGeometry = "geomCustom";

/// Copies the geometry that comes next, from the first field that begins with "v " up to the one
/// that begins with "}", which is passed over. Fields are read and written: indentation goes, and a
/// line with a comma becomes two. A file that ends before is inputPastEnd (62).
void copyEmbeddedGeometry(text::LineReader& in, text::LineWriter& out);

}  // namespace norvik::figure
