#include "text/line_filter.h"

#include <algorithm>
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

LineFilter::LineFilter(std::initializer_list<Token> tokens)
    : LineFilter(std::vector<Token>{tokens}) {}

LineFilter::LineFilter(const std::vector<Token>& tokens) {
  for (const Token& token : tokens) searches_.push_back({token, rarestOffset(token.text)});
}

/// The first hit that starts from `begin` on and in front of `end`, or `end`.
std::size_t LineFilter::find(std::string_view block, std::size_t begin, std::size_t end,
                             const Search& search) {
  const std::string_view token = search.token.text;
  if (token.empty()) return begin;
  const char rarest = token[search.rarest];
  const std::size_t last = std::min(end + search.rarest, block.size());
  std::size_t offset = begin + search.rarest;
  while (offset < last) {
    const void* hit = std::memchr(block.data() + offset, rarest, last - offset);
    if (hit == nullptr) break;
    const auto at = static_cast<std::size_t>(static_cast<const char*>(hit) - block.data());
    const std::size_t start = at - search.rarest;
    const bool whole = block.substr(start, token.size()) == token;
    if (whole && (!search.token.atLineStart || startsLine(block, start))) return start;
    offset = at + 1;
  }
  return end;
}

std::size_t LineFilter::find(std::string_view block) const {
  // Slice by slice, so that a token that is nowhere costs no more than the way to the next hit of
  // another one. The first slice is small for lines that are hit one behind the other.
  constexpr std::size_t kSmallest = 512;
  constexpr std::size_t kLargest = std::size_t{32} * 1024;
  std::size_t size = kSmallest;
  for (std::size_t begin = 0; begin < block.size();) {
    const std::size_t end = std::min(begin + size, block.size());
    std::size_t first = end;
    for (const Search& search : searches_) {
      if (first == begin) break;
      first = find(block, begin, first, search);
    }
    if (first < end) return first;
    begin = end;
    size = std::min(size * 2, kLargest);
  }
  return block.size();
}

}  // namespace norvik::text
