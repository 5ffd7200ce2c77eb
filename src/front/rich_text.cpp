#include "front/rich_text.h"

namespace norvik::front {

std::size_t RichTextBox::lineCount() const {
  const std::string& all = text();
  std::size_t lines = 0;
  std::size_t at = 0;
  while (at < all.size()) {
    const std::size_t end = all.find_first_of("\r\n", at);
    ++lines;
    if (end == std::string::npos) break;
    at = end + (all.compare(end, 2, "\r\n") == 0 ? 2 : 1);
  }
  return lines;
}

}  // namespace norvik::front
