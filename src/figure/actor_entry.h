#pragma once
// Body parts as the lists show them, and as tools read them back.

#include "text/columns.h"

#include <string>
#include <string_view>

namespace norvik::figure {

/// What an actor's entry says of its line: the text from column 6, so that it begins with a blank.
inline std::string_view actorText(std::string_view line) {
  constexpr std::size_t kTextColumn = 6;
  return text::from(line, kTextColumn);
}

/// The entry of an actor of the storage section, whose second following line is empty.
inline constexpr std::string_view kStorageEntry = " ";

/// Any entry but that of the body stands behind three blanks.
inline std::string indentedEntry(std::string_view entry) {
  return text::holds(entry, "BODY") ? std::string{entry} : "   " + std::string{entry};
}

}  // namespace norvik::figure
