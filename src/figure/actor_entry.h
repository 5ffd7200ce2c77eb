#pragma once
// The entries of ListActors, read back: blanks, the actor's name, a blank, "*" and the number of
// its line.

#include "text/columns.h"
#include "text/number_text.h"

#include <string>
#include <string_view>

namespace norvik::figure {

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
