#include "text/long/long_text.h"

#include "text/line_scan.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace norvik::text {

namespace {

constexpr std::size_t kPiece = std::size_t{32} * 1024;  ///< of a text that is loaded
constexpr std::size_t kMostInPiece = 2 * kPiece;
constexpr std::size_t kLeastInPiece = kPiece / 8;

bool endsWithReturn(std::string_view bytes) {
  return !bytes.empty() && bytes.back() == '\r';
}

}  // namespace

LongText::Place LongText::find(std::size_t position) const {
  std::size_t piece = 0;
  std::size_t offset = std::min(position, size_);
  while (piece < pieces_.size() && offset >= pieces_[piece].bytes.size()) {
    offset -= pieces_[piece].bytes.size();
    ++piece;
  }
  return {piece, offset};
}

void LongText::takeCounts(const Piece& piece) {
  size_ -= piece.bytes.size();
  lineEnds_ -= piece.lineEnds;
}

void LongText::giveCounts(const Piece& piece) {
  size_ += piece.bytes.size();
  lineEnds_ += piece.lineEnds;
}

/// Counts anew after a change of the bytes that the sums do not know of yet.
void LongText::recount(Piece& piece) {
  piece.lineEnds = static_cast<std::size_t>(countLines(piece.bytes));
  giveCounts(piece);
}

std::string LongText::slice(std::size_t at, std::size_t length) const {
  std::string result;
  result.reserve(std::min(length, size_ - std::min(at, size_)));
  visitFrom(at, [&](std::string_view bytes) {
    result += bytes.substr(0, length - result.size());
    return result.size() < length;
  });
  return result;
}

char LongText::at(std::size_t position) const {
  const Place place = find(position);
  return place.piece < pieces_.size() ? pieces_[place.piece].bytes[place.offset] : '\0';
}

void LongText::append(std::string_view bytes) {
  while (!bytes.empty()) {
    const bool fresh = pieces_.empty() || pieces_.back().bytes.size() >= kPiece;
    if (fresh) {
      pieces_.emplace_back().bytes.reserve(std::min(bytes.size(), kPiece));
    } else {
      takeCounts(pieces_.back());
    }
    std::string& last = pieces_.back().bytes;
    const std::size_t size = std::min(bytes.size(), kPiece - last.size());
    last += bytes.substr(0, size);
    bytes.remove_prefix(size);
    recount(pieces_.back());
    if (fresh && pieces_.size() > 1) mend(pieces_.size() - 2);
  }
}

/// Brings a line end that the border behind a piece cuts into one piece, and makes one of two that
/// are small.
void LongText::mend(std::size_t left) {
  if (left + 1 >= pieces_.size()) return;
  Piece& first = pieces_[left];
  Piece& second = pieces_[left + 1];
  const bool cutsAnEnd = endsWithReturn(first.bytes) && second.bytes.starts_with('\n');
  const bool joins = first.bytes.size() + second.bytes.size() <= kPiece &&
                     std::min(first.bytes.size(), second.bytes.size()) < kLeastInPiece;
  if (!cutsAnEnd && !joins) return;
  takeCounts(first);
  takeCounts(second);
  const std::size_t moved = joins ? second.bytes.size() : 1;
  first.bytes.append(second.bytes, 0, moved);
  second.bytes.erase(0, moved);
  recount(first);
  recount(second);
  if (second.bytes.empty()) {
    pieces_.erase(pieces_.begin() + static_cast<std::ptrdiff_t>(left) + 1);
    // What comes next may begin with the other half of a line end.
    mend(left);
  }
}

/// Makes a border at a position; the number of the piece behind it. The border may cut a line end.
std::size_t LongText::divide(std::size_t position) {
  const Place place = find(position);
  if (place.offset == 0) return place.piece;
  Piece behind;
  Piece& piece = pieces_[place.piece];
  takeCounts(piece);
  behind.bytes = piece.bytes.substr(place.offset);
  piece.bytes.resize(place.offset);
  recount(piece);
  recount(behind);
  pieces_.insert(pieces_.begin() + static_cast<std::ptrdiff_t>(place.piece) + 1, std::move(behind));
  return place.piece + 1;
}

/// Makes several pieces of one that has grown too large.
void LongText::part(std::size_t piece) {
  LongText parts;
  parts.append(pieces_[piece].bytes);
  takeCounts(pieces_[piece]);
  for (const Piece& made : parts.pieces_) giveCounts(made);
  const auto place = pieces_.erase(pieces_.begin() + static_cast<std::ptrdiff_t>(piece));
  pieces_.insert(place, std::make_move_iterator(parts.pieces_.begin()),
                 std::make_move_iterator(parts.pieces_.end()));
}

LongText LongText::cut(std::size_t at, std::size_t length) {
  const std::size_t begin = std::min(at, size_);
  const std::size_t count = std::min(length, size_ - begin);
  LongText result;
  if (count == 0) return result;
  const Place place = find(begin);
  std::string& bytes = pieces_[place.piece].bytes;
  if (count < kLeastInPiece && place.offset > 0 && place.offset + count < bytes.size()) {
    result.append(std::string_view{bytes}.substr(place.offset, count));
    takeCounts(pieces_[place.piece]);
    bytes.erase(place.offset, count);
    recount(pieces_[place.piece]);
    return result;
  }
  const std::size_t first = divide(begin);
  const std::size_t last = divide(begin + count);
  const auto from = pieces_.begin() + static_cast<std::ptrdiff_t>(first);
  const auto to = pieces_.begin() + static_cast<std::ptrdiff_t>(last);
  for (auto piece = from; piece != to; ++piece) {
    takeCounts(*piece);
    result.giveCounts(*piece);
  }
  result.pieces_.assign(std::make_move_iterator(from), std::make_move_iterator(to));
  pieces_.erase(from, to);
  if (first > 0) mend(first - 1);
  return result;
}

void LongText::insert(std::size_t at, LongText text) {
  if (text.empty()) return;
  const std::size_t first = divide(at);
  const std::size_t count = text.pieces_.size();
  for (const Piece& piece : text.pieces_) giveCounts(piece);
  pieces_.insert(pieces_.begin() + static_cast<std::ptrdiff_t>(first),
                 std::make_move_iterator(text.pieces_.begin()),
                 std::make_move_iterator(text.pieces_.end()));
  // From the back, so that a joint does not move the other one.
  mend(first + count - 1);
  if (first > 0) mend(first - 1);
}

void LongText::replace(std::size_t at, std::size_t length, std::string_view bytes) {
  const std::size_t begin = std::min(at, size_);
  const std::size_t count = std::min(length, size_ - begin);
  if (count == 0 && bytes.empty()) return;
  Place place = find(begin);
  // Text behind the end of a piece goes to its end.
  if (place.offset == 0 && place.piece > 0) {
    --place.piece;
    place.offset = pieces_[place.piece].bytes.size();
  }
  const bool inside =
      place.piece < pieces_.size() && bytes.size() <= kPiece &&
      place.offset + count < pieces_[place.piece].bytes.size() + (count == 0 ? 1 : 0);
  if (!inside) {
    cut(begin, count);
    insert(begin, LongText(bytes));
    return;
  }
  Piece& piece = pieces_[place.piece];
  takeCounts(piece);
  piece.bytes.replace(place.offset, count, bytes);
  recount(piece);
  if (piece.bytes.empty()) {
    pieces_.erase(pieces_.begin() + static_cast<std::ptrdiff_t>(place.piece));
    if (place.piece > 0) mend(place.piece - 1);
    return;
  }
  if (piece.bytes.size() > kMostInPiece) {
    const std::size_t before = pieces_.size();
    part(place.piece);
    mend(place.piece + pieces_.size() - before);
  }
  mend(place.piece);
  if (place.piece > 0) mend(place.piece - 1);
}

std::size_t LongText::lineOf(std::size_t position) const {
  const Place place = find(position);
  std::size_t line = 0;
  for (std::size_t i = 0; i < place.piece; ++i) line += pieces_[i].lineEnds;
  if (place.piece == pieces_.size()) return line;
  const std::string_view bytes = pieces_[place.piece].bytes;
  const std::string_view before = bytes.substr(0, place.offset);
  line += static_cast<std::size_t>(countLines(before));
  const bool inEnd = endsWithReturn(before) && bytes[place.offset] == '\n';
  return inEnd ? line - 1 : line;
}

std::size_t LongText::lineStart(std::size_t line) const {
  std::size_t start = 0;
  std::uint64_t left = line;
  if (left == 0) return 0;
  for (const Piece& piece : pieces_) {
    if (left <= piece.lineEnds) return start + endOfLines(piece.bytes, left);
    left -= piece.lineEnds;
    start += piece.bytes.size();
  }
  return size_;
}

std::size_t LongText::lineEnd(std::size_t line) const {
  std::size_t at = lineStart(line);
  visitFrom(at, [&](std::string_view bytes) {
    const std::size_t end = findLineEnd(bytes, 0);
    at += end;
    return end == bytes.size();
  });
  return at;
}

std::vector<LongText::Line> LongText::lines(std::size_t first, std::size_t count) const {
  std::vector<Line> result;
  if (count == 0 || first >= lineCount()) return result;
  std::size_t start = lineStart(first);
  std::size_t begin = start;
  visitFrom(start, [&](std::string_view bytes) {
    for (std::size_t at = start > begin ? start - begin : 0; at < bytes.size();) {
      const std::size_t end = findLineEnd(bytes, at);
      if (end == bytes.size()) break;
      result.push_back({start, begin + end});
      const bool pair = bytes[end] == '\r' && end + 1 < bytes.size() && bytes[end + 1] == '\n';
      at = end + (pair ? 2 : 1);
      start = begin + at;
      if (result.size() == count) return false;
    }
    begin += bytes.size();
    return true;
  });
  if (result.size() < count) result.push_back({start, size_});
  return result;
}

}  // namespace norvik::text
