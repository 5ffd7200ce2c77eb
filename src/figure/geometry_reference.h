#pragma once
// References to geometry files, as figure text writes them.

#include "text/columns.h"

#include <string_view>

namespace norvik::figure {

/// What stands behind "Geometries:" in a line. Without it the text from column 11, since the offset
/// is then counted from 0.
inline std::string_view geometryTail(std::string_view line) {
  constexpr std::size_t kTokenLength = 11;
  return text::from(line, text::column(line, "Geometries:") + kTokenLength);
}

}  // namespace norvik::figure
