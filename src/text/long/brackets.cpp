#include "text/long/brackets.h"

#include "text/byte_chunk.h"
#include "text/line_scan.h"

#include <bit>
#include <string_view>

namespace norvik::text {

namespace {

constexpr std::string_view kOpening = "{([";
constexpr std::string_view kClosing = "})]";

/// Counts the depth from one bracket on until it is back where it began.
class Depth {
 public:
  Depth(char deeper, char back) : deeper_(deeper), back_(back) {}
  char deeper() const { return deeper_; }
  char back() const { return back_; }
  /// Whether this bracket is the one that was looked for.
  bool ends(char bracket) {
    depth_ += bracket == deeper_ ? 1 : -1;
    return depth_ == 0;
  }

 private:
  char deeper_;
  char back_;
  long long depth_ = 0;
};

std::optional<std::size_t> findForward(std::string_view bytes, Depth& depth) {
  std::size_t at = findAny(bytes, 0, depth.deeper(), depth.back());
  while (at < bytes.size()) {
    if (depth.ends(bytes[at])) return at;
    at = findAny(bytes, at + 1, depth.deeper(), depth.back());
  }
  return std::nullopt;
}

std::optional<std::size_t> findBackward(std::string_view bytes, Depth& depth) {
  std::size_t end = bytes.size();
  constexpr std::size_t kTop = ByteChunk::kSize - 1;
  while (end >= ByteChunk::kSize) {
    const std::size_t begin = end - ByteChunk::kSize;
    std::uint64_t marks = ByteChunk(bytes.data() + begin).matching(depth.deeper(), depth.back());
    while (marks != 0) {
      const std::size_t bit = kTop - static_cast<std::size_t>(std::countl_zero(marks));
      if (depth.ends(bytes[begin + bit])) return begin + bit;
      marks &= ~(std::uint64_t{1} << bit);
    }
    end = begin;
  }
  while (end > 0) {
    --end;
    const bool isOne = bytes[end] == depth.deeper() || bytes[end] == depth.back();
    if (isOne && depth.ends(bytes[end])) return end;
  }
  return std::nullopt;
}

}  // namespace

std::optional<std::size_t> matchingBracket(const LongText& content, std::size_t at) {
  const char bracket = content.at(at);
  if (bracket == '\0') return std::nullopt;
  std::optional<std::size_t> found;
  if (const auto kind = kOpening.find(bracket); kind != std::string_view::npos) {
    Depth depth(bracket, kClosing[kind]);
    std::size_t begin = at;
    content.visitFrom(at, [&](std::string_view bytes) {
      found = findForward(bytes, depth);
      if (found) *found += begin;
      begin += bytes.size();
      return !found;
    });
  } else if (const auto other = kClosing.find(bracket); other != std::string_view::npos) {
    Depth depth(bracket, kOpening[other]);
    content.visitBack(at + 1, [&](std::string_view bytes, std::size_t begin) {
      found = findBackward(bytes, depth);
      if (found) *found += begin;
      return !found;
    });
  }
  return found;
}

}  // namespace norvik::text
