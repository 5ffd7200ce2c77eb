#pragma once
// Field reads that step over what cannot matter.

#include "text/line_reader.h"

#include <optional>
#include <string_view>

namespace norvik::pose {

/// The next field of a line that the filter accepts; nothing at the end of the file. The filter
/// must accept lines with a double quote, since a quoted field runs over line ends.
inline std::optional<std::string_view> nextField(text::LineReader& in,
                                                 const text::LineFilter& stops) {
  in.passLines(stops);
  if (in.atEnd()) return std::nullopt;
  return in.field();
}

}  // namespace norvik::pose
