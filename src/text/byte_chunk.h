#pragma once
// Many bytes looked at together: lines are shorter than a chunk as a rule, so that one look tells
// where they end.

#include <bit>
#include <cstddef>
#include <cstdint>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace norvik::text {

/// 64 bytes of a text, which must have that many.
class ByteChunk {
 public:
  static constexpr std::size_t kSize = 64;

  explicit ByteChunk(const char* bytes) : bytes_(bytes) {}

  /// A bit for each byte that is one of the characters, the lowest bit for the first byte.
  template <typename... Chars>
  std::uint64_t matching(Chars... wanted) const {
    std::uint64_t marks = 0;
#if defined(__SSE2__)
    constexpr std::size_t kPart = sizeof(__m128i);
    for (std::size_t at = 0; at < kSize; at += kPart) {
      __m128i part;
      __builtin_memcpy(&part, bytes_ + at, kPart);
      __m128i hits = _mm_setzero_si128();
      ((hits = _mm_or_si128(hits, _mm_cmpeq_epi8(part, _mm_set1_epi8(wanted)))), ...);
      marks |= std::uint64_t{static_cast<std::uint32_t>(_mm_movemask_epi8(hits))} << at;
    }
#else
    for (std::size_t at = 0; at < kSize; ++at) {
      marks |= std::uint64_t{((bytes_[at] == wanted) | ...)} << at;
    }
#endif
    return marks;
  }

 private:
  const char* bytes_;
};

/// The offset of the first byte that a bit stands for; 64 for no bit.
inline std::size_t firstOf(std::uint64_t marks) {
  return static_cast<std::size_t>(std::countr_zero(marks));
}

}  // namespace norvik::text
