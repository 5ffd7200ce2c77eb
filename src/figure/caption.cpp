#include "figure/caption.h"

#include "text/columns.h"
#include "text/number_text.h"

namespace norvik::figure {

std::string shortenedPath(std::string_view path) {
  constexpr std::size_t kLongest = 42;
  constexpr std::size_t kShown = 45;
  if (path.size() <= kLongest) return std::string{path};
  return "..." + std::string{text::rightmost(path, kShown)};
}

std::string sizeInBytes(const text::Disk& disk, std::string_view path) {
  return text::wholeNumberText(static_cast<std::int64_t>(disk.size(path))) + " bytes";
}

}  // namespace norvik::figure
