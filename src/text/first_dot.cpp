#include "text/first_dot.h"

#include "text/columns.h"

namespace norvik::text {

std::string_view upToFirstDot(std::string_view path) {
  return leftmost(path, before(path, ".").size() + 1);
}

std::string withEnding(std::string_view path, std::string_view ending) {
  std::string result{upToFirstDot(path)};
  return result += ending;
}

}  // namespace norvik::text
