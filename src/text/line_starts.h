#pragma once
// Lines told by their first character, for passes to which hardly any line matters.

#include "text/byte_chunk.h"
#include "text/line_scan.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace norvik::text {

/// The offset of the first line from `start` on that begins with one of the characters, or the
/// text's size. `start` is the offset of a line.
template <typename... Chars>
std::size_t findLineStart(std::string_view lines, std::size_t start, Chars... wanted) {
  std::size_t at = start;
  bool lineStart = true;
  for (; at + ByteChunk::kSize <= lines.size(); at += ByteChunk::kSize) {
    const ByteChunk chunk(lines.data() + at);
    const std::uint64_t starts = chunk.matching('\r', '\n') << 1U | (lineStart ? 1U : 0U);
    const std::uint64_t hits = starts & chunk.matching(wanted...);
    if (hits != 0) return at + firstOf(hits);
    lineStart = isLineEnd(lines[at + ByteChunk::kSize - 1]);
  }
  for (; at < lines.size(); ++at) {
    if (lineStart && ((lines[at] == wanted) || ...)) return at;
    lineStart = isLineEnd(lines[at]);
  }
  return lines.size();
}

/// The offset behind the ending at `end`, where a line's text ends or the text does.
inline std::size_t behindLineEnd(std::string_view lines, std::size_t end) {
  if (end >= lines.size()) return lines.size();
  return end + (lines.substr(end, 2) == "\r\n" ? 2 : 1);
}

}  // namespace norvik::text
