#include "builders/phi/phi_index.h"

#include "builders/phi/phi_parts.h"
#include "text/columns.h"

#include <algorithm>

namespace norvik::builders {

namespace {

/// A part's name, a colon and one character at the most: the number of a figure is no longer.
bool isListedPart(std::string_view actor) {
  const std::size_t colon = actor.find(':');
  if (colon == std::string_view::npos || actor.size() > colon + 2) return false;
  const auto name = actor.substr(0, colon);
  return std::any_of(kPhiParts.begin(), kPhiParts.end(),
                     [name](const PhiPart& part) { return part.name == name; });
}

}  // namespace

void PhiIndex::note(std::string_view field, std::uint64_t behind) {
  if (text::begins(field, kActor)) {
    if (isListedPart(field.substr(kActor.size()))) actors_.emplace(field);
  } else if (!chain_ && text::begins(field, kChain)) {
    chain_ = {std::string{field}, behind};
  }
}

}  // namespace norvik::builders
