#include "desktop/page/page_painter.h"

#include "desktop/theme.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace norvik::desktop {

namespace {

QColor mixed(const QColor& ground, const QColor& ink, double part) {
  const auto mix = [part](int from, int to) {
    return static_cast<int>(std::lround(from + (to - from) * part));
  };
  return {mix(ground.red(), ink.red()), mix(ground.green(), ink.green()),
          mix(ground.blue(), ink.blue())};
}

class PagePainter {
 public:
  PagePainter(QPainter& painter, const QRect& area, const QPalette& palette, const PageInk& ink)
      : painter_(painter), area_(area), palette_(palette), ink_(ink) {}

  void ground(std::size_t rows) {
    constexpr double kFaint = 0.06;
    const QColor base = palette_.color(QPalette::Base);
    painter_.fillRect(area_, base);
    for (std::size_t row = 0; row < rows; ++row) {
      if (ink_.first + row != ink_.caretLine) continue;
      painter_.fillRect(QRect(0, top(row), area_.width(), ink_.rowHeight),
                        mixed(base, palette_.color(QPalette::Highlight), 2 * kFaint));
    }
    clipToText(false);
    painter_.fillRect(QRect(0, 0, ink_.gutter, area_.height()),
                      mixed(base, palette_.color(QPalette::Text), kFaint));
  }

  void number(std::size_t row) {
    const bool here = ink_.first + row == ink_.caretLine;
    constexpr double kPale = 0.55;
    painter_.setPen(
        here ? palette_.color(QPalette::Text)
             : mixed(palette_.color(QPalette::Base), palette_.color(QPalette::Text), kPale));
    constexpr int kMargin = 6;
    painter_.drawText(QRect(0, top(row), ink_.gutter - kMargin, ink_.rowHeight),
                      Qt::AlignRight | Qt::AlignVCenter, QString::number(ink_.first + row + 1));
  }

  void marks(std::size_t row, const PageLine& line) {
    constexpr double kShade = 0.35;
    const QColor base = palette_.color(QPalette::Base);
    for (const text::LongText::Line& hit : ink_.hits) {
      band(row, line, hit.start, hit.end, mixed(base, accentOf(palette_), kShade));
    }
    const QPalette::ColorGroup group = ink_.focused ? QPalette::Active : QPalette::Inactive;
    const QColor selection = mixed(base, palette_.color(group, QPalette::Highlight), 0.5);
    band(row, line, ink_.selectionStart, ink_.selectionEnd, selection);
    for (const std::size_t bracket : ink_.brackets) {
      const QRectF place = placeOf(row, line, bracket, bracket + 1);
      if (place.isEmpty()) continue;
      painter_.setPen(accentOf(palette_));
      painter_.drawRect(place.adjusted(0, 0, -1, -1));
    }
  }

  void letters(std::size_t row, const PageLine& line) {
    painter_.setPen(palette_.color(QPalette::Text));
    const auto columns = static_cast<std::int64_t>(area_.width() / ink_.letterWidth) + 2;
    for (const PageLine::Run& run : line.runs(ink_.firstColumn, ink_.firstColumn + columns)) {
      painter_.drawText(QPointF(xOf(run.column), top(row) + ink_.ascent), run.letters);
    }
  }

  void clipToText(bool on) {
    painter_.setClipping(on);
    if (on) painter_.setClipRect(area_.adjusted(ink_.gutter, 0, 0, 0));
  }

 private:
  int top(std::size_t row) const { return static_cast<int>(row) * ink_.rowHeight; }
  double xOf(std::int64_t column) const {
    return ink_.textLeft + static_cast<double>(column) * ink_.letterWidth;
  }

  QRectF placeOf(std::size_t row, const PageLine& line, std::size_t start, std::size_t end) const {
    const std::size_t lineEnd = line.start() + line.size();
    if (start >= end || end <= line.start() || start > lineEnd) return {};
    const std::size_t from = std::max(start, line.start()) - line.start();
    const std::size_t to = std::min(end, lineEnd) - line.start();
    const double left = xOf(line.columnOf(from));
    // A selected line end is half a letter.
    const double right = xOf(line.columnOf(to)) + (end > lineEnd ? ink_.letterWidth / 2 : 0);
    return {left, static_cast<double>(top(row)), right - left, static_cast<double>(ink_.rowHeight)};
  }

  void band(std::size_t row, const PageLine& line, std::size_t start, std::size_t end,
            const QColor& colour) {
    const QRectF place = placeOf(row, line, start, end);
    if (!place.isEmpty()) painter_.fillRect(place, colour);
  }

  QPainter& painter_;
  const QRect& area_;
  const QPalette& palette_;
  const PageInk& ink_;
};

}  // namespace

std::int64_t paintPage(QPainter& painter, const QRect& area, const QPalette& palette,
                       const std::vector<PageLine>& lines, const PageInk& ink) {
  PagePainter page(painter, area, palette, ink);
  page.ground(lines.size());
  for (std::size_t row = 0; row < lines.size(); ++row) page.number(row);
  page.clipToText(true);
  std::int64_t widest = 0;
  for (std::size_t row = 0; row < lines.size(); ++row) {
    page.marks(row, lines[row]);
    page.letters(row, lines[row]);
    widest = std::max(widest, lines[row].columnOf(lines[row].size()));
  }
  page.clipToText(false);
  return widest;
}

}  // namespace norvik::desktop
