#include "desktop/page/page_view.h"

#include "desktop/page/page_painter.h"
#include "text/long/brackets.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyleHints>

#include <algorithm>
#include <cmath>

namespace norvik::desktop {

namespace {

constexpr int kGutterMargin = 6;
constexpr int kTextMargin = 4;
constexpr int kColumnsBeside = 4;  // seen behind the caret
constexpr int kMostColumns = 1 << 24;

}  // namespace

PageView::PageView(const front::TextPane& pane, QWidget* parent)
    : QAbstractScrollArea(parent),
      pane_(pane),
      steps_(pane.content(), [this](char32_t letter) { return isWide(letter); }) {
  setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_InputMethodEnabled);
  viewport()->setCursor(Qt::IBeamCursor);
  viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
  setUpFont();
  connect(&blink_, &QTimer::timeout, this, [this] {
    caretOn_ = !caretOn_;
    viewport()->update(caretRect());
  });
  constexpr int kPull = 40;  // milliseconds
  pull_.setInterval(kPull);
  connect(&pull_, &QTimer::timeout, this, [this] { extendByMouse(); });
  constexpr int kRest = 60;
  look_.setSingleShot(true);
  look_.setInterval(kRest);
  connect(&look_, &QTimer::timeout, this, [this] { lookForBrackets(); });
}

void PageView::setUpFont() {
  const QFontMetricsF metrics(font());
  letterWidth_ = std::max(1.0, metrics.horizontalAdvance(QLatin1Char('0')));
  rowHeight_ = std::max(1, static_cast<int>(std::ceil(metrics.height())));
  ascent_ = static_cast<int>(std::ceil(metrics.ascent()));
}

void PageView::changeEvent(QEvent* event) {
  QAbstractScrollArea::changeEvent(event);
  if (event->type() != QEvent::FontChange) return;
  setUpFont();
  setUpScrollBars();
}

bool PageView::isWide(char32_t letter) const {
  constexpr double kHalf = 1.5;
  const QFontMetricsF metrics(font());
  return metrics.horizontalAdvance(QString::fromUcs4(&letter, 1)) > kHalf * letterWidth_;
}

int PageView::rowsOnView() const {
  return std::max(1, viewport()->height() / rowHeight_);
}

/// As wide as the last line's number.
int PageView::gutterWidth() const {
  constexpr std::size_t kLeastDigits = 3;
  const std::size_t digits = std::max(kLeastDigits, std::to_string(content().lineCount()).size());
  return static_cast<int>(static_cast<double>(digits) * letterWidth_) + 2 * kGutterMargin;
}

double PageView::xOf(std::int64_t column) const {
  const auto seen = static_cast<double>(column - horizontalScrollBar()->value());
  return gutterWidth() + kTextMargin + seen * letterWidth_;
}

std::size_t PageView::placeAt(const QPoint& point) const {
  const int row = point.y() < 0 ? -1 : point.y() / rowHeight_;
  const std::int64_t wanted = std::int64_t{verticalScrollBar()->value()} + row;
  const auto last = static_cast<std::int64_t>(content().lineCount()) - 1;
  const PageLine line =
      steps_.line(static_cast<std::size_t>(std::clamp<std::int64_t>(wanted, 0, last)));
  const double column = (point.x() - xOf(0)) / letterWidth_;
  return line.start() + line.offsetAt(column);
}

QRect PageView::caretRect() const {
  constexpr int kCaretWidth = 2;
  const std::size_t number = content().lineOf(caret_);
  const PageLine line = steps_.line(number);
  const std::int64_t row = static_cast<std::int64_t>(number) - verticalScrollBar()->value();
  if (row < 0 || row > rowsOnView()) return {};
  const double x = xOf(line.columnOf(caret_ - line.start()));
  if (x < gutterWidth() || x > viewport()->width()) return {};
  return {static_cast<int>(x) - 1, static_cast<int>(row) * rowHeight_, kCaretWidth, rowHeight_};
}

void PageView::setUpScrollBars() {
  const int rows = rowsOnView();
  const auto lines = static_cast<int>(std::min<std::size_t>(content().lineCount(), 2'000'000'000));
  verticalScrollBar()->setRange(0, std::max(0, lines - rows));
  verticalScrollBar()->setPageStep(rows);
  const int columns = std::max(
      1, static_cast<int>((viewport()->width() - gutterWidth() - kTextMargin) / letterWidth_));
  const auto widest = static_cast<int>(std::min<std::int64_t>(widest_, kMostColumns));
  horizontalScrollBar()->setRange(0, std::max(0, widest + kColumnsBeside - columns));
  horizontalScrollBar()->setPageStep(columns);
  viewport()->update();
}

void PageView::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  setUpScrollBars();
}

void PageView::scrollContentsBy(int, int) {
  viewport()->update();
}

void PageView::setShaded(std::optional<text::TextSearch> search) {
  shaded_ = std::move(search);
  viewport()->update();
}

void PageView::follow() {
  const bool otherText = shownChanges_ != pane_.textChanges();
  const std::size_t start = pane_.caret();
  const std::size_t end = start + pane_.selectionLength();
  const bool moved = start != selectionStart() || end != selectionEnd();
  if (!otherText && !moved) return;
  shownChanges_ = pane_.textChanges();
  if (moved || otherText) {
    if (start != selectionStart() || end != selectionEnd()) {
      anchor_ = start;
      caret_ = end;
      goalColumn_ = -1;
    }
  }
  if (otherText) setUpScrollBars();
  presentCaret();
}

/// Brings the caret into view; its brackets are looked for when it rests.
void PageView::presentCaret() {
  showCaret();
  restartBlink();
  bracket_.reset();
  otherBracket_.reset();
  look_.start();
  viewport()->update();
}

/// Scrolls as little as it takes, or to the middle if the caret is far away.
void PageView::showCaret() {
  const std::size_t number = content().lineOf(caret_);
  const auto line = static_cast<int>(number);
  const int rows = rowsOnView();
  QScrollBar& vertical = *verticalScrollBar();
  if (line < vertical.value()) {
    vertical.setValue(line < vertical.value() - rows ? line - rows / 2 : line);
  } else if (line >= vertical.value() + rows) {
    vertical.setValue(line >= vertical.value() + 2 * rows ? line - rows / 2 : line - rows + 1);
  }
  const PageLine at = steps_.line(number);
  const std::int64_t column = at.columnOf(caret_ - at.start());
  if (column > widest_) {
    widest_ = column;
    setUpScrollBars();
  }
  QScrollBar& horizontal = *horizontalScrollBar();
  const auto wanted = static_cast<int>(std::min<std::int64_t>(column, kMostColumns));
  if (wanted < horizontal.value() + 1) {
    horizontal.setValue(std::max(0, wanted - kColumnsBeside));
  } else if (wanted > horizontal.value() + horizontal.pageStep() - 1) {
    horizontal.setValue(wanted - horizontal.pageStep() + kColumnsBeside);
  }
}

void PageView::restartBlink() {
  caretOn_ = true;
  const int flash = QGuiApplication::styleHints()->cursorFlashTime();
  if (hasFocus() && flash > 0) {
    blink_.start(flash / 2);
  } else {
    blink_.stop();
  }
}

void PageView::focusInEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusInEvent(event);
  restartBlink();
  viewport()->update();
}

void PageView::focusOutEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusOutEvent(event);
  blink_.stop();
  viewport()->update();
}

/// The bracket behind the caret, or else the one in front of it.
void PageView::lookForBrackets() {
  bracket_ = caret_;
  otherBracket_ = text::matchingBracket(content(), caret_);
  if (!otherBracket_ && caret_ > 0) {
    bracket_ = caret_ - 1;
    otherBracket_ = text::matchingBracket(content(), caret_ - 1);
  }
  if (!otherBracket_) bracket_.reset();
  viewport()->update();
}

void PageView::paintEvent(QPaintEvent*) {
  const int first = verticalScrollBar()->value();
  const auto lines =
      content().lines(static_cast<std::size_t>(first), static_cast<std::size_t>(rowsOnView()) + 2);
  std::vector<PageLine> page;
  page.reserve(lines.size());
  for (const auto& line : lines) {
    page.emplace_back(content(), line, [this](char32_t letter) { return isWide(letter); });
  }
  PageInk ink{.first = static_cast<std::size_t>(first),
              .caretLine = content().lineOf(caret_),
              .selectionStart = selectionStart(),
              .selectionEnd = selectionEnd(),
              .gutter = gutterWidth(),
              .textLeft = xOf(0),
              .letterWidth = letterWidth_,
              .rowHeight = rowHeight_,
              .ascent = ascent_,
              .firstColumn = horizontalScrollBar()->value(),
              .focused = hasFocus()};
  if (bracket_ && otherBracket_) ink.brackets = {*bracket_, *otherBracket_};
  if (shaded_ && !lines.empty()) {
    const std::size_t from = lines.front().start - std::min(lines.front().start, shaded_->size());
    shaded_->visit(content(), from, lines.back().end, [&](std::size_t hit) {
      ink.hits.push_back({hit, hit + shaded_->size()});
      return true;
    });
  }
  QPainter painter(viewport());
  painter.setFont(font());
  const std::int64_t widest = paintPage(painter, viewport()->rect(), palette(), page, ink);
  if (hasFocus() && caretOn_) painter.fillRect(caretRect(), palette().text());
  if (widest > widest_) {
    widest_ = widest;
    QTimer::singleShot(0, this, [this] { setUpScrollBars(); });
  }
}

}  // namespace norvik::desktop
