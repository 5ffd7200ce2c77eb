#pragma once
// Line ends in blocks of bytes.

#include "text/byte_chunk.h"

#include <cstdint>
#include <string_view>

namespace norvik::text {

inline bool isLineEnd(char c) {
  return c == '\r' || c == '\n';
}

/// The offset of the first byte at or behind `start` that is one of the characters, or the text's
/// size.
template <typename... Chars>
std::size_t findAny(std::string_view text, std::size_t start, Chars... wanted) {
  std::size_t at = start;
  for (; at + ByteChunk::kSize <= text.size(); at += ByteChunk::kSize) {
    const std::uint64_t hits = ByteChunk(text.data() + at).matching(wanted...);
    if (hits != 0) return at + firstOf(hits);
  }
  while (at < text.size() && ((text[at] != wanted) && ...)) ++at;
  return at;
}

/// Calls `visit` with the offset of each byte from `start` on that is one of the characters.
template <typename Visit, typename... Chars>
void visitEach(std::string_view text, std::size_t start, Visit visit, Chars... wanted) {
  std::size_t at = start;
  for (; at + ByteChunk::kSize <= text.size(); at += ByteChunk::kSize) {
    std::uint64_t hits = ByteChunk(text.data() + at).matching(wanted...);
    for (; hits != 0; hits &= hits - 1) visit(at + firstOf(hits));
  }
  for (; at < text.size(); ++at) {
    if (((text[at] == wanted) || ...)) visit(at);
  }
}

/// The offset of the first CR or LF at or behind `start`, or the text's size.
inline std::size_t findLineEnd(std::string_view text, std::size_t start) {
  return findAny(text, start, '\r', '\n');
}

/// The bytes of the line ending at the front of a text that goes on behind it: 2 for CR LF.
inline std::size_t lineEndSize(const char* end) {
  return end[0] == '\r' && end[1] == '\n' ? 2 : 1;
}

/// The line endings in a text that is not cut between a CR and its LF.
std::uint64_t countLines(std::string_view text);

/// The offset behind the first `count` lines of a text, or its size if it has no more. `count`
/// becomes what is left of it; the text is not cut between a CR and its LF.
std::size_t endOfLines(std::string_view text, std::uint64_t& count);

/// Whether every line ending in the text is CR LF.
bool hasConventionalEndings(std::string_view text);

/// Whether any of the lines in the text is empty; the text begins at the start of a line.
bool hasEmptyLines(std::string_view text);

/// Whether every line ending in the text is CR LF and no line in it begins with a blank; the text
/// begins at the start of a line.
bool hasPlainLines(std::string_view text);

}  // namespace norvik::text
