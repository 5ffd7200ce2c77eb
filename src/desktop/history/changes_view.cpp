#include "desktop/history/changes_view.h"

#include "desktop/theme.h"

#include <QFontDatabase>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <limits>

namespace norvik::desktop {

namespace {

constexpr int kMargin = 8;
constexpr int kGutter = 18;
constexpr int kLongest = 2000;  ///< characters of a line that are drawn

}  // namespace

ChangesView::ChangesView(std::unique_ptr<ChangeRows> rows, QWidget* parent)
    : QAbstractScrollArea(parent), rows_(std::move(rows)) {
  setObjectName(QStringLiteral("ChangesView"));
  setAccessibleName(QStringLiteral("Changes"));
  setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  setFocusPolicy(Qt::StrongFocus);
  viewport()->setBackgroundRole(QPalette::Base);
  fitScrollBars();
}

int ChangesView::rowHeight() const {
  return fontMetrics().height() + 2;
}

void ChangesView::fitScrollBars() {
  const int seen = std::max(1, viewport()->height() / rowHeight());
  const auto rows = static_cast<int>(
      std::min<std::uint64_t>(rows_->count(), std::numeric_limits<int>::max() / 2));
  verticalScrollBar()->setRange(0, std::max(0, rows - seen));
  verticalScrollBar()->setPageStep(seen);
  horizontalScrollBar()->setRange(0, std::max(0, widest_ - viewport()->width()));
  horizontalScrollBar()->setPageStep(viewport()->width());
  horizontalScrollBar()->setSingleStep(4 * fontMetrics().averageCharWidth());
}

QColor ChangesView::inkOf(ChangeRows::Kind kind) const {
  const bool dark = isDark(palette());
  switch (kind) {
    case ChangeRows::Kind::removed:
      return dark ? QColor(0xFF8A80) : QColor(0xA01818);
    case ChangeRows::Kind::added:
      return dark ? QColor(0x80D894) : QColor(0x0B6B2B);
    case ChangeRows::Kind::place:
      return palette().color(QPalette::PlaceholderText);
    case ChangeRows::Kind::section:
      break;
  }
  return palette().color(QPalette::Text);
}

void ChangesView::paintEvent(QPaintEvent*) {
  QPainter painter(viewport());
  painter.fillRect(viewport()->rect(), palette().color(QPalette::Base));
  const int height = rowHeight();
  const auto first = static_cast<std::uint64_t>(verticalScrollBar()->value());
  const int left = kMargin - horizontalScrollBar()->value();
  const int before = widest_;
  const int seen = viewport()->height() / height + 1;
  for (int i = 0; i < seen && first + static_cast<std::uint64_t>(i) < rows_->count(); ++i) {
    const ChangeRows::Row row = rows_->row(first + static_cast<std::uint64_t>(i));
    const QRect place(left, i * height, std::numeric_limits<short>::max(), height);
    const bool section = row.kind == ChangeRows::Kind::section;
    QFont rowFont = font();
    rowFont.setBold(section);
    painter.setFont(rowFont);
    painter.setPen(inkOf(row.kind));
    // The signs tell what the colours tell.
    const bool line = row.kind == ChangeRows::Kind::removed || row.kind == ChangeRows::Kind::added;
    if (line) {
      const bool removed = row.kind == ChangeRows::Kind::removed;
      painter.drawText(place, Qt::AlignVCenter,
                       removed ? QStringLiteral("\u2212") : QStringLiteral("+"));
    }
    const QString text = row.text.left(kLongest);
    painter.drawText(place.adjusted(section ? 0 : kGutter, 0, 0, 0), Qt::AlignVCenter, text);
    widest_ = std::max(widest_, fontMetrics().horizontalAdvance(text) + 2 * kMargin + kGutter);
  }
  if (rows_->count() == 0) {
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect(), Qt::AlignCenter,
                     QStringLiteral("No line of the two differs."));
  }
  if (widest_ != before) fitScrollBars();
}

void ChangesView::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  fitScrollBars();
}

void ChangesView::changeEvent(QEvent* event) {
  QAbstractScrollArea::changeEvent(event);
  if (event->type() == QEvent::FontChange) fitScrollBars();
}

void ChangesView::goTo(std::uint64_t row) {
  verticalScrollBar()->setValue(static_cast<int>(row));
}

void ChangesView::goToNext() {
  const auto top = static_cast<std::uint64_t>(verticalScrollBar()->value());
  for (std::size_t i = 0; i < rows_->changes(); ++i) {
    if (rows_->startOf(i) > top) return goTo(rows_->startOf(i));
  }
}

void ChangesView::goToPrevious() {
  const auto top = static_cast<std::uint64_t>(verticalScrollBar()->value());
  for (std::size_t i = rows_->changes(); i-- > 0;) {
    if (rows_->startOf(i) < top) return goTo(rows_->startOf(i));
  }
}

void ChangesView::keyPressEvent(QKeyEvent* event) {
  QScrollBar& bar = *verticalScrollBar();
  switch (event->key()) {
    case Qt::Key_Home:
      return bar.setValue(bar.minimum());
    case Qt::Key_End:
      return bar.setValue(bar.maximum());
    case Qt::Key_N:
      return goToNext();
    case Qt::Key_P:
      return goToPrevious();
    default:
      // Arrows and pages are the scroll area's own.
      QAbstractScrollArea::keyPressEvent(event);
  }
}

}  // namespace norvik::desktop
