#include "text/line_filter.h"

#include <cstring>

namespace norvik::text {

namespace {

/// How common a character is in figure files, roughly: the search goes for the rarest of a token.
int frequency(char c) {
  if (c >= 'A' && c <= 'Z') return 1;
  if (std::strchr("{}\",", c) != nullptr) return 2;
  if (std::strchr("jqzxykvwugfpbG", c) != nullptr) return 3;
  if (std::strchr("cmohl", c) != nullptr) return 4;
  if (c >= 'a' && c <= 'z' && c != 'd') return 5;
  return 6;
}

std::size_t rarestOffset(std::string_view token) {
  std::size_t best = 0;
  for (std::size_t i = 1; i < token.size(); ++i) {
    if (frequency(token[i]) < frequency(token[best])) best = i;
  }
  return best;
}

bool startsLine(std::string_view block, std::size_t offset) {
  return offset == 0 || block[offset - 1] == '\n' || block[offset - 1] == '\r';
}

}  // namespace

LineFilter::LineFilter(std::initializer_list<Token> tokens) {
  for (const Token& token : tokens) searches_.push_back({token, rarestOffset(token.text)});
}

std::size_t LineFilter::find(std::string_view block, const Search& search) {
  const std::string_view token = search.token.text;
  if (token.empty()) return 0;
  const char rarest = token[search.rarest];
  std::size_t offset = search.rarest;
  while (offset < block.size()) {
    const void* hit = std::memchr(block.data() + offset, rarest, block.size() - offset);
    if (hit == nullptr) break;
    const auto at = static_cast<std::size_t>(static_cast<const char*>(hit) - block.data());
    const std::size_t start = at - search.rarest;
    const bool whole = block.substr(start, token.size()) == token;
    if (whole && (!search.token.atLineStart || startsLine(block, start))) return start;
    offset = at + 1;
  }
  return block.size();
}

std::size_t LineFilter::find(std::string_view block) const {
  std::size_t first = block.size();
  for (const Search& search : searches_) {
    // A later token need only be looked for in front of the best hit, with room for its own length.
    if (first == 0) break;
    const auto reach = first == block.size() ? first : first + search.token.text.size() - 1;
    const auto hit = find(block.substr(0, reach), search);
    if (hit < first) first = hit;
  }
  return first;
}

}  // namespace norvik::text
