#pragma once
// One line of a page, as the characters that are seen.

#include "text/long/long_text.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace norvik::desktop {

/// The characters of a line and the columns that they stand in: all letters are of one width, a tab
/// goes to the next column that is a multiple of kTab, a wide letter takes two. Places in the line
/// are offsets in bytes from its start. A line of more than kLongest bytes is not looked into: each
/// byte is a column there, so that a line of 100 MB costs no more than one of a page.
class PageLine {
 public:
  static constexpr int kTab = 4;
  static constexpr std::size_t kLongest = std::size_t{32} * 1024;
  using IsWide = std::function<bool(char32_t)>;

  PageLine(const text::LongText& content, text::LongText::Line line, const IsWide& isWide);

  std::size_t start() const { return line_.start; }
  std::size_t size() const { return line_.end - line_.start; }

  /// The column of a place; behind the end that of the end.
  std::int64_t columnOf(std::size_t offset) const;
  /// The place that is nearest to a column.
  std::size_t offsetAt(double column) const;
  /// The place of the character behind or in front of one; the ends of the line at the most.
  std::size_t next(std::size_t offset) const;
  std::size_t previous(std::size_t offset) const;

  /// A stretch of characters that are drawn together.
  struct Run {
    std::int64_t column;
    QString letters;
  };
  /// What is seen between two columns.
  std::vector<Run> runs(std::int64_t from, std::int64_t to) const;

 private:
  struct Cell {
    std::uint32_t offset;
    std::uint32_t column;
    char32_t letter;
  };

  void decode(const std::string& bytes, const IsWide& isWide);
  std::vector<Run> plainRuns(std::int64_t from, std::int64_t to) const;

  const text::LongText& content_;
  text::LongText::Line line_;
  bool plain_ = false;       ///< a column is a byte
  std::vector<Cell> cells_;  ///< of any other line, and one behind the last
};

}  // namespace norvik::desktop
