#pragma once
// Names that carry the number of their figure behind a colon: "rThigh:1".

#include "text/columns.h"

#include <string_view>

namespace norvik::figure {

/// What stands behind the first colon, kept as text; empty without a colon.
inline std::string_view figureNumber(std::string_view name) {
  const auto colon = text::column(name, ":");
  return colon == 0 ? std::string_view{} : text::from(name, colon + 1);
}

/// Whether two figure numbers are one, blanks at their ends aside.
inline bool sameFigure(std::string_view left, std::string_view right) {
  return text::trimmed(left) == text::trimmed(right);
}

/// A morph's internal name on its entry line, read without indentation: "targetGeom Smile".
inline std::string_view morphName(std::string_view field) {
  constexpr std::size_t kNameColumn = 12;
  return text::from(field, kNameColumn);
}

/// The name on an actor line: "actor rThigh:1".
inline std::string_view nameOnActorLine(std::string_view line) {
  constexpr std::size_t kNameColumn = 7;
  return text::from(line, kNameColumn);
}

}  // namespace norvik::figure
