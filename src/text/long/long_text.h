#pragma once
// A text of any size that is edited in place, and whose lines are found by their numbers.

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::text {

/// Bytes, whatever they are, in pieces of some ten thousand, each of which knows how many lines end
/// in it. So a key, a jump to a line and a line on view cost the same in a text of 100 MB as in one
/// of a page, and a cut moves the pieces instead of their bytes.
///
/// A line ends at CR LF, LF or CR; behind the last end stands one line more, which may be empty.
/// Positions and lines count from 0. A position behind the end counts as the end.
class LongText {
 public:
  LongText() = default;
  explicit LongText(std::string_view bytes) { append(bytes); }

  std::size_t size() const { return size_; }
  bool empty() const { return size_ == 0; }

  /// All of it as one string, or `length` bytes of it.
  std::string string() const { return slice(0, size_); }
  std::string slice(std::size_t at, std::size_t length) const;
  /// The byte at a position; 0 at the end.
  char at(std::size_t position) const;

  void append(std::string_view bytes);
  /// Puts a text in the place of `length` bytes.
  void replace(std::size_t at, std::size_t length, std::string_view bytes);
  /// Takes `length` bytes out.
  LongText cut(std::size_t at, std::size_t length);
  void insert(std::size_t at, LongText text);

  std::size_t lineCount() const { return lineEnds_ + 1; }
  /// The line in which a position stands; between a CR and its LF it is the line that they end.
  std::size_t lineOf(std::size_t position) const;
  /// Where a line begins; the text's size for a line that is not there.
  std::size_t lineStart(std::size_t line) const;
  /// Where the bytes of a line end, its line end left out.
  std::size_t lineEnd(std::size_t line) const;

  /// Where a line begins and where its bytes end, its line end left out.
  struct Line {
    std::size_t start;
    std::size_t end;
  };
  /// Up to `count` lines that follow one another.
  std::vector<Line> lines(std::size_t first, std::size_t count) const;

  /// The pieces from a position on, each as one view, until `visit` returns false.
  template <typename Visit>
  void visitFrom(std::size_t position, Visit visit) const {
    Place place = find(position);
    for (; place.piece < pieces_.size(); ++place.piece, place.offset = 0) {
      const std::string_view bytes = pieces_[place.piece].bytes;
      if (place.offset < bytes.size() && !visit(bytes.substr(place.offset))) return;
    }
  }

  /// The pieces in front of a position, the last one first, each as one view and the place where it
  /// begins, until `visit` returns false.
  template <typename Visit>
  void visitBack(std::size_t position, Visit visit) const {
    const Place place = find(position);
    std::size_t begin = std::min(position, size_) - place.offset;
    if (place.offset > 0) {
      const std::string_view bytes = pieces_[place.piece].bytes;
      if (!visit(bytes.substr(0, place.offset), begin)) return;
    }
    for (std::size_t i = place.piece; i > 0; --i) {
      const std::string_view bytes = pieces_[i - 1].bytes;
      begin -= bytes.size();
      if (!visit(bytes, begin)) return;
    }
  }

 private:
  struct Piece {
    std::string bytes;
    std::size_t lineEnds = 0;
  };
  struct Place {
    std::size_t piece;
    std::size_t offset;
  };

  Place find(std::size_t position) const;
  void recount(Piece& piece);
  void mend(std::size_t left);
  std::size_t divide(std::size_t position);
  void part(std::size_t piece);
  void takeCounts(const Piece& piece);
  void giveCounts(const Piece& piece);

  // No line end is cut by the border of two pieces, and none is empty.
  std::vector<Piece> pieces_;
  std::size_t size_ = 0;
  std::size_t lineEnds_ = 0;
};

}  // namespace norvik::text
