#include "figure/caption.h"

#include "text/columns.h"

namespace norvik::figure {

std::string shortenedPath(std::string_view path) {
  constexpr std::size_t kLongest = 42;
  constexpr std::size_t kShown = 45;
  if (path.size() <= kLongest) return std::string{path};
  return "..." + std::string{text::rightmost(path, kShown)};
}

}  // namespace norvik::figure
