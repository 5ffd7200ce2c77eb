#pragma once
// Copies of texts as short as a line, of which a figure has millions.

#include <cstddef>
#include <cstring>
#include <string_view>

namespace norvik::text {

/// Copies a text to a place that has room for it and lies apart from it. Most lines are of 16 to 64
/// bytes: they go as two or four parts that overlap, without a call and without a loop.
inline void copyBytes(std::string_view from, char* to) {
  constexpr std::size_t kPart = 16;
  const std::size_t size = from.size();
  if (size >= kPart && size <= 4 * kPart) {
    const char* bytes = from.data();
    std::memcpy(to, bytes, kPart);
    if (size > 2 * kPart) {
      std::memcpy(to + kPart, bytes + kPart, kPart);
      std::memcpy(to + size - 2 * kPart, bytes + size - 2 * kPart, kPart);
    }
    std::memcpy(to + size - kPart, bytes + size - kPart, kPart);
  } else if (size > 0) {
    std::memcpy(to, from.data(), size);
  }
}

}  // namespace norvik::text
