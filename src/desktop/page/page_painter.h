#pragma once
// The picture of a page.

#include "desktop/page/page_line.h"

#include <QPalette>
#include <QRect>

#include <cstdint>
#include <vector>

class QPainter;

namespace norvik::desktop {

/// What is drawn beside the letters, and where. Places are those of the whole text.
struct PageInk {
  std::size_t first = 0;  ///< the number of the first line
  std::size_t caretLine = 0;
  std::size_t selectionStart = 0;
  std::size_t selectionEnd = 0;
  int gutter = 0;
  double textLeft = 0;  ///< of column 0
  double letterWidth = 1;
  int rowHeight = 1;
  int ascent = 1;
  std::int64_t firstColumn = 0;
  bool focused = false;
  std::vector<std::size_t> brackets{};
  std::vector<text::LongText::Line> hits{};
};

/// Draws the lines, one a row, and returns how many columns the widest of them has.
std::int64_t paintPage(QPainter& painter, const QRect& area, const QPalette& palette,
                       const std::vector<PageLine>& lines, const PageInk& ink);

}  // namespace norvik::desktop
