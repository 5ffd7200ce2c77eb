#pragma once
// Where the caret goes from a place of a text.

#include "desktop/page/page_line.h"

namespace norvik::desktop {

/// The steps of the caret over the characters, words and lines of a text. A line end is one step,
/// whether it is of one byte or two.
class PageSteps {
 public:
  PageSteps(const text::LongText& content, PageLine::IsWide isWide)
      : content_(content), isWide_(std::move(isWide)) {}

  PageLine line(std::size_t number) const;
  PageLine lineAt(std::size_t place) const { return line(content_.lineOf(place)); }

  std::size_t right(std::size_t place) const;
  std::size_t left(std::size_t place) const;
  std::size_t wordRight(std::size_t place) const;
  std::size_t wordLeft(std::size_t place) const;
  /// The first character of the line that is no blank; the line's start from there.
  std::size_t home(std::size_t place) const;
  std::size_t end(std::size_t place) const;
  /// The same column some lines away; the first and the last line at the most.
  std::size_t vertically(std::size_t place, std::int64_t lines, std::int64_t column) const;

  /// The word that a place is in or at the end of, or the character behind it.
  text::LongText::Line word(std::size_t place) const;

 private:
  const text::LongText& content_;
  PageLine::IsWide isWide_;
};

}  // namespace norvik::desktop
