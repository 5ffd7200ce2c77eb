#include "text/wildcards.h"

#include "text/columns.h"

namespace norvik::text {

bool matchesWildcards(std::string_view name, std::string_view pattern) {
  if (pattern == "*.*") return true;
  // The last "*" takes one character more whenever what follows it does not fit.
  std::size_t n = 0;
  std::size_t p = 0;
  std::size_t star = std::string_view::npos;
  std::size_t resume = 0;
  while (n < name.size()) {
    if (p < pattern.size() && pattern[p] == '*') {
      star = p++;
      resume = n;
    } else if (p < pattern.size() &&
               (pattern[p] == '?' || equalIgnoringCase(pattern.substr(p, 1), name.substr(n, 1)))) {
      ++n;
      ++p;
    } else if (star != std::string_view::npos) {
      p = star + 1;
      n = ++resume;
    } else {
      return false;
    }
  }
  while (p < pattern.size() && pattern[p] == '*') ++p;
  return p == pattern.size();
}

}  // namespace norvik::text
