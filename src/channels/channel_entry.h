#pragma once
// What tells a channel entry from its neighbours, in the text of a figure.

#include "text/columns.h"

#include <string>
#include <string_view>

namespace norvik::channels {

/// Whether a line of the whole-line read ends the channel entry in front of it. Only these three
/// kinds do: a valueParm, rotateX or translateX channel travels with the morph before it.
inline bool endsEntry(std::string_view line) {
  return text::begins(line, "\t\ttargetGeom") || text::begins(line, "\t\ttwist") ||
         text::begins(line, "\t\tjoint");
}

/// What follows "name" and one blank in a name line; a line without "name" from its fifth
/// character.
inline std::string_view dialName(std::string_view line) {
  constexpr std::size_t kTokenLength = 5;
  return text::from(line, text::column(line, "name") + kTokenLength);
}

/// The line with which the entry of a morph begins.
inline std::string morphLine(std::string_view name) {
  return "\t\ttargetGeom " + std::string{name};
}

}  // namespace norvik::channels
