#include "desktop/window/flow_layout.h"

#include <QWidget>

#include <algorithm>
#include <utility>

namespace norvik::desktop {

FlowLayout::FlowLayout(QWidget* parent) : QLayout(parent) {}

FlowLayout::~FlowLayout() = default;

void FlowLayout::addItem(QLayoutItem* item) {
  items_.emplace_back(item);
}

int FlowLayout::count() const {
  return static_cast<int>(items_.size());
}

QLayoutItem* FlowLayout::itemAt(int index) const {
  const bool known = index >= 0 && index < count();
  return known ? items_[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* FlowLayout::takeAt(int index) {
  if (index < 0 || index >= count()) return nullptr;
  const auto at = items_.begin() + index;
  QLayoutItem* item = at->release();
  items_.erase(at);
  return item;
}

/// All in one row.
QSize FlowLayout::sizeHint() const {
  const QMargins edge = contentsMargins();
  QSize size(0, 0);
  for (const auto& item : items_) {
    const QSize one = item->sizeHint();
    size = {size.width() + one.width() + spacing(), std::max(size.height(), one.height())};
  }
  return size + QSize(edge.left() + edge.right(), edge.top() + edge.bottom());
}

/// The widest one in each row; how many rows that makes only the width tells.
QSize FlowLayout::minimumSize() const {
  const QMargins edge = contentsMargins();
  QSize size(0, 0);
  for (const auto& item : items_) size = size.expandedTo(item->minimumSize());
  return size + QSize(edge.left() + edge.right(), edge.top() + edge.bottom());
}

void FlowLayout::setGeometry(const QRect& place) {
  QLayout::setGeometry(place);
  arrange(place, true);
}

int FlowLayout::arrange(const QRect& place, bool move) const {
  const QMargins edge = contentsMargins();
  const QRect room = place.marginsRemoved(edge);
  int left = room.left();
  int top = room.top();
  int rowHeight = 0;
  for (const auto& item : items_) {
    if (item->isEmpty()) continue;
    const QSize size = item->sizeHint();
    if (left > room.left() && left + size.width() > room.right() + 1) {
      left = room.left();
      top += rowHeight + spacing();
      rowHeight = 0;
    }
    if (move) item->setGeometry({QPoint(left, top), size});
    left += size.width() + spacing();
    rowHeight = std::max(rowHeight, size.height());
  }
  return top + rowHeight + edge.bottom() - place.top();
}

}  // namespace norvik::desktop
