#pragma once
// The entries of body part lists, as they are made and read back. An entry of ListActors is blanks,
// the actor's name, a blank, "*" and the number of its line.

#include "text/columns.h"
#include "text/number_text.h"

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

/// Whether an entry names an actor; those of a storage section are blank.
inline bool namesActor(std::string_view entry) {
  return text::holds(entry, "*");
}

/// The actor's name with its figure number: what stands in front of the "*", without its blanks.
inline std::string actorName(std::string_view entry) {
  return std::string{text::trimmed(text::before(entry, "*"))};
}

/// The number of the actor's line behind the "*"; 0 if there is none.
inline double actorLineNumber(std::string_view entry) {
  return namesActor(entry) ? text::value(text::after(entry, "*")) : 0;
}

}  // namespace norvik::figure
