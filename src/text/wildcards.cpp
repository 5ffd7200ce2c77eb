#include "text/wildcards.h"

#include "text/file_names.h"

namespace norvik::text {

bool matchesWildcards(std::string_view fileName, std::string_view wildcards) {
  if (wildcards == "*.*") return true;
  const std::u32string name = foldedName(fileName);
  const std::u32string pattern = foldedName(wildcards);
  // The last "*" takes one character more whenever what follows it does not fit.
  std::size_t n = 0;
  std::size_t p = 0;
  std::size_t star = std::u32string::npos;
  std::size_t resume = 0;
  while (n < name.size()) {
    if (p < pattern.size() && pattern[p] == U'*') {
      star = p++;
      resume = n;
    } else if (p < pattern.size() && (pattern[p] == U'?' || pattern[p] == name[n])) {
      ++n;
      ++p;
    } else if (star != std::u32string::npos) {
      p = star + 1;
      n = ++resume;
    } else {
      return false;
    }
  }
  while (p < pattern.size() && pattern[p] == U'*') ++p;
  return p == pattern.size();
}

}  // namespace norvik::text
