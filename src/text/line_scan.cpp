#include "text/line_scan.h"

#include <algorithm>
#include <array>

// The scans run over every byte of a figure. Where the compiler can, they are also made for wider
// registers, and the program takes what the machine has.
#if defined(__x86_64__) && defined(__OPTIMIZE__) && defined(__GNUC__) && !defined(__clang__)
#define NORVIK_WIDE [[gnu::target_clones("avx2", "default")]]
#else
#define NORVIK_WIDE
#endif

namespace norvik::text {

namespace {

constexpr std::size_t kLanes = 64;
constexpr std::size_t kMostRounds = 255;  // before a lane of eight bits runs over

/// Calls `test` with each two bytes that follow one another, and returns how often it holds. It is
/// written, as the tests must be, so that the compiler can take many bytes at a time: with results
/// of eight bits and without a branch.
template <typename Test>
inline std::uint64_t countPairs(std::string_view text, Test test) {
  std::uint64_t total = 0;
  const char* bytes = text.data();
  std::size_t pairs = text.empty() ? 0 : text.size() - 1;
  while (pairs >= kLanes) {
    std::array<std::uint8_t, kLanes> lanes{};
    const std::size_t rounds = std::min(pairs / kLanes, kMostRounds);
    for (std::size_t round = 0; round < rounds; ++round) {
      for (std::size_t i = 0; i < kLanes; ++i) {
        lanes[i] = static_cast<std::uint8_t>(lanes[i] + test(bytes[i], bytes[i + 1]));
      }
      bytes += kLanes;
    }
    pairs -= rounds * kLanes;
    for (const std::uint8_t lane : lanes) total += lane;
  }
  for (std::size_t i = 0; i < pairs; ++i) total += test(bytes[i], bytes[i + 1]);
  return total;
}

}  // namespace

NORVIK_WIDE std::uint64_t countLines(std::string_view text) {
  if (text.empty()) return 0;
  const std::uint64_t ends = countPairs(text, [](char c, char next) -> std::uint8_t {
    return (c == '\n') | ((c == '\r') & (next != '\n'));
  });
  return ends + (isLineEnd(text.back()) ? 1 : 0);
}

std::size_t endOfLines(std::string_view text, std::uint64_t& count) {
  if (text.empty()) return 0;
  const std::uint64_t lines = countLines(text) + (isLineEnd(text.back()) ? 0 : 1);
  if (lines <= count) {
    count -= lines;
    return text.size();
  }
  std::size_t end = 0;
  for (; count > 0; --count) {
    end = findLineEnd(text, end);
    end += lineEndSize(text.data() + end);  // there is a line behind it
  }
  return end;
}

NORVIK_WIDE bool hasConventionalEndings(std::string_view text) {
  if (text.empty()) return true;
  if (text.front() == '\n' || text.back() == '\r') return false;
  return countPairs(text, [](char c, char next) -> std::uint8_t {
           return (c == '\r') ^ (next == '\n');
         }) == 0;
}

NORVIK_WIDE bool hasEmptyLines(std::string_view text) {
  if (text.empty()) return false;
  if (isLineEnd(text.front())) return true;
  // Two line ends in a row, unless they are one CR LF.
  return countPairs(text, [](char c, char next) -> std::uint8_t {
           return ((c == '\n') & ((next == '\n') | (next == '\r'))) |
                  ((c == '\r') & (next == '\r'));
         }) > 0;
}

NORVIK_WIDE bool hasPlainLines(std::string_view text) {
  if (text.empty()) return true;
  if (text.front() == '\n' || text.front() == ' ' || text.back() == '\r') return false;
  return countPairs(text, [](char c, char next) -> std::uint8_t {
           return ((c == '\r') ^ (next == '\n')) | ((c == '\n') & (next == ' '));
         }) == 0;
}

}  // namespace norvik::text
