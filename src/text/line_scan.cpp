#include "text/line_scan.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

namespace norvik::text {

namespace {

constexpr std::size_t kWord = sizeof(std::uint64_t);
constexpr std::uint64_t kOnes = 0x0101010101010101U;
constexpr std::uint64_t kHighBits = 0x8080808080808080U;

/// A mark in the high bit of each byte that is zero; bytes behind the first zero may be marked
/// wrongly.
std::uint64_t zeroBytes(std::uint64_t word) {
  return (word - kOnes) & ~word & kHighBits;
}

std::uint64_t lineEndBytes(std::uint64_t word) {
  return zeroBytes(word ^ (kOnes * '\r')) | zeroBytes(word ^ (kOnes * '\n'));
}

constexpr std::size_t kLanes = 32;
constexpr std::size_t kMostRounds = 255;  // before a lane of eight bits runs over

}  // namespace

std::size_t findLineEnd(std::string_view text, std::size_t start) {
  std::size_t at = start;
  if constexpr (std::endian::native == std::endian::little) {
    for (; at + kWord <= text.size(); at += kWord) {
      std::uint64_t word = 0;
      std::memcpy(&word, text.data() + at, kWord);
      const std::uint64_t marks = lineEndBytes(word);
      if (marks != 0) return at + static_cast<std::size_t>(std::countr_zero(marks)) / 8;
    }
  }
  while (at < text.size() && text[at] != '\r' && text[at] != '\n') ++at;
  return at;
}

// The two loops below are written so that the compiler can take many bytes at a time.

std::uint64_t countLines(std::string_view text) {
  std::uint64_t total = 0;
  const char* bytes = text.data();
  std::size_t left = text.size();
  while (left > kLanes) {
    std::array<std::uint8_t, kLanes> lanes{};
    const std::size_t rounds = std::min((left - 1) / kLanes, kMostRounds);
    for (std::size_t round = 0; round < rounds; ++round) {
      for (std::size_t i = 0; i < kLanes; ++i) {
        const bool lf = bytes[i] == '\n';
        const bool loneCr = (bytes[i] == '\r') & (bytes[i + 1] != '\n');
        lanes[i] = static_cast<std::uint8_t>(lanes[i] + static_cast<unsigned>(lf | loneCr));
      }
      bytes += kLanes;
      left -= kLanes;
    }
    for (const std::uint8_t lane : lanes) total += lane;
  }
  for (std::size_t i = 0; i < left; ++i) {
    const bool loneCr = bytes[i] == '\r' && (i + 1 == left || bytes[i + 1] != '\n');
    if (bytes[i] == '\n' || loneCr) ++total;
  }
  return total;
}

bool hasConventionalEndings(std::string_view text) {
  if (text.empty()) return true;
  if (text.front() == '\n' || text.back() == '\r') return false;
  unsigned wrong = 0;
  const char* bytes = text.data();
  for (std::size_t i = 0; i + 1 < text.size(); ++i) {
    wrong |= static_cast<unsigned>(bytes[i] == '\r') ^ static_cast<unsigned>(bytes[i + 1] == '\n');
  }
  return wrong == 0;
}

bool hasEmptyLines(std::string_view text) {
  if (text.empty()) return false;
  if (text.front() == '\n' || text.front() == '\r') return true;
  unsigned found = 0;
  const char* bytes = text.data();
  for (std::size_t i = 0; i + 1 < text.size(); ++i) {
    // Two line ends in a row, unless they are one CR LF.
    const bool lfAnyEnd = (bytes[i] == '\n') & ((bytes[i + 1] == '\n') | (bytes[i + 1] == '\r'));
    const bool crCr = (bytes[i] == '\r') & (bytes[i + 1] == '\r');
    found |= static_cast<unsigned>(lfAnyEnd | crCr);
  }
  return found != 0;
}

}  // namespace norvik::text
