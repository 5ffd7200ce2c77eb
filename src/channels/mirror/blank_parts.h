#pragma once
// Texts that blanks divide.

#include "text/columns.h"

#include <algorithm>
#include <string_view>

namespace norvik::channels {

/// Takes the next part, and the blanks in front of it, from a text; empty when none is left.
inline std::string_view takePart(std::string_view& text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  const auto part = text::before(text, " ");
  text.remove_prefix(part.size());
  return part;
}

}  // namespace norvik::channels
