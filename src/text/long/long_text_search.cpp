#include "text/long/long_text_search.h"

#include "text/byte_chunk.h"

#include <algorithm>
#include <vector>

namespace norvik::text {

namespace {

constexpr unsigned kCaseBit = 0x20;

unsigned byteOf(char c) {
  return static_cast<unsigned char>(c);
}

/// Whether a byte is a capital letter; 0xD7 among those above 127 is a sign.
bool isCapital(unsigned byte) {
  return (byte >= 'A' && byte <= 'Z') || (byte >= 0xC0 && byte <= 0xDE && byte != 0xD7);
}

char small(char c) {
  const unsigned byte = byteOf(c);
  return isCapital(byte) ? static_cast<char>(byte + kCaseBit) : c;
}

bool isSmall(unsigned byte) {
  return byte >= kCaseBit && isCapital(byte - kCaseBit);
}

bool isOfWord(char c) {
  const unsigned byte = byteOf(c);
  return isCapital(byte) || isSmall(byte) || byte == 0xDF || byte == 0xFF ||
         (byte >= '0' && byte <= '9') || byte == '_';
}

}  // namespace

TextSearch::TextSearch(std::string_view wanted, Rules rules) : wanted_(wanted), rules_(rules) {
  if (!rules_.matchCase) std::transform(wanted_.begin(), wanted_.end(), wanted_.begin(), small);
}

TextSearch::Sides TextSearch::sidesOf(char letter) const {
  const unsigned byte = byteOf(letter);
  const bool two = !rules_.matchCase && isSmall(byte);
  return {letter, two ? static_cast<char>(byte - kCaseBit) : letter};
}

bool TextSearch::fits(const char* bytes) const {
  if (rules_.matchCase) return std::equal(wanted_.begin(), wanted_.end(), bytes);
  return std::equal(wanted_.begin(), wanted_.end(), bytes,
                    [](char wanted, char c) { return wanted == small(c); });
}

/// The first hit that lies in the bytes, or npos. Sixty-four places are looked at together: a hit
/// has the first and the last byte that are wanted.
std::size_t TextSearch::findIn(std::string_view bytes, std::size_t from) const {
  if (bytes.size() < wanted_.size()) return std::string_view::npos;
  const std::size_t last = bytes.size() - wanted_.size();
  const Sides first = sidesOf(wanted_.front());
  const Sides final = sidesOf(wanted_.back());
  std::size_t at = from;
  for (; at + ByteChunk::kSize <= last + 1; at += ByteChunk::kSize) {
    const char* place = bytes.data() + at;
    std::uint64_t marks = ByteChunk(place).matching(first.one, first.other);
    if (marks != 0) {
      marks &= ByteChunk(place + wanted_.size() - 1).matching(final.one, final.other);
    }
    for (; marks != 0; marks &= marks - 1) {
      if (fits(place + firstOf(marks))) return at + firstOf(marks);
    }
  }
  for (; at <= last; ++at) {
    if (fits(bytes.data() + at)) return at;
  }
  return std::string_view::npos;
}

bool TextSearch::standsAlone(const LongText& text, std::size_t at) const {
  const bool joinedBefore = at > 0 && isOfWord(text.at(at - 1));
  return !joinedBefore && !isOfWord(text.at(at + wanted_.size()));
}

void TextSearch::visit(const LongText& text, std::size_t from, std::size_t limit,
                       const Visit& seen) const {
  if (wanted_.empty() || from >= text.size()) return;
  const std::size_t overlap = wanted_.size() - 1;
  std::size_t start = from;
  std::size_t next = from;
  bool goOn = true;
  // The hits that begin in some bytes of the text, in front of `end`.
  const auto visitIn = [&](std::string_view bytes, std::size_t begin, std::size_t end) {
    for (std::size_t at = next - begin; goOn;) {
      const std::size_t found = findIn(bytes, at);
      if (found == std::string_view::npos || begin + found >= end) return;
      const bool isHit = !rules_.wholeWord || standsAlone(text, begin + found);
      goOn = !isHit || seen(begin + found);
      at = found + (isHit ? wanted_.size() : 1);
      next = begin + at;
    }
  };
  text.visitFrom(from, [&](std::string_view bytes) {
    const std::size_t end = std::min(start + bytes.size(), limit);
    if (next < end) visitIn(bytes, start, end);
    start += bytes.size();
    next = std::max(next, start - std::min(overlap, bytes.size()));
    if (goOn && next < end && overlap > 0) {
      // Those that go on behind this piece.
      const std::size_t border = next;
      visitIn(text.slice(border, start - border + overlap), border, end);
    }
    next = std::max(next, start);
    return goOn && start < limit;
  });
}

std::optional<std::size_t> TextSearch::find(const LongText& text, std::size_t from) const {
  std::optional<std::size_t> hit;
  visit(text, from, text.size(), [&hit](std::size_t at) {
    hit = at;
    return false;
  });
  return hit;
}

namespace {

/// Copies a text from its start on into another, in blocks.
class Copyist {
 public:
  Copyist(const LongText& from, LongText& to) : to_(to) {
    from.visitFrom(0, [this](std::string_view bytes) {
      pieces_.push_back(bytes);
      return true;
    });
  }

  /// Copies what stands in front of a place and was not passed yet.
  void copyUpTo(std::size_t place) {
    while (at_ < place) {
      const std::string_view bytes = rest(place);
      add(bytes);
      pass(bytes.size());
    }
  }
  void passUpTo(std::size_t place) {
    while (at_ < place) pass(rest(place).size());
  }
  void add(std::string_view bytes) {
    constexpr std::size_t kBlock = std::size_t{1} << 20U;
    held_ += bytes;
    if (held_.size() >= kBlock) write();
  }
  void write() {
    to_.append(held_);
    held_.clear();
  }
  std::size_t written() const { return to_.size() + held_.size(); }

 private:
  std::string_view rest(std::size_t place) const {
    return pieces_[piece_].substr(offset_, place - at_);
  }
  void pass(std::size_t count) {
    at_ += count;
    offset_ += count;
    if (offset_ == pieces_[piece_].size()) {
      ++piece_;
      offset_ = 0;
    }
  }

  LongText& to_;
  std::vector<std::string_view> pieces_;
  std::size_t piece_ = 0;
  std::size_t offset_ = 0;
  std::size_t at_ = 0;
  std::string held_;
};

}  // namespace

Replaced replaceAll(const LongText& text, const TextSearch& search, std::string_view with) {
  Replaced result;
  Copyist copyist(text, result.text);
  search.visit(text, 0, text.size(), [&](std::size_t hit) {
    copyist.copyUpTo(hit);
    copyist.add(with);
    copyist.passUpTo(hit + search.size());
    ++result.hits;
    result.behindLast = copyist.written();
    return true;
  });
  copyist.copyUpTo(text.size());
  copyist.write();
  return result;
}

}  // namespace norvik::text
