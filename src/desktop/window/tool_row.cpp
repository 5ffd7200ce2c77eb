#include "desktop/window/tool_row.h"

#include "desktop/window/headings.h"

#include <QEvent>
#include <QHBoxLayout>

#include <algorithm>

namespace norvik::desktop {

ToolRow::ToolRow(QString picture, QWidget& parent)
    : QWidget(&parent), picture_(std::move(picture)), line_(new QHBoxLayout(this)) {
  line_->setContentsMargins(kPaneMargin, 4, kPaneMargin, 0);
}

void ToolRow::place() {
  const auto* button = window()->findChild<QWidget*>(picture_);
  int left = kPaneMargin;
  if (button != nullptr && button->isVisible()) {
    const int wanted = mapFromGlobal(button->mapToGlobal(QPoint(0, 0))).x();
    const int held = line_->minimumSize().width() - line_->contentsMargins().left();
    left = std::max(left, std::min(wanted, width() - held));
  }
  if (line_->contentsMargins().left() != left) line_->setContentsMargins(left, 4, kPaneMargin, 0);
}

void ToolRow::showEvent(QShowEvent* event) {
  place();
  QWidget::showEvent(event);
}

void ToolRow::resizeEvent(QResizeEvent* event) {
  place();
  QWidget::resizeEvent(event);
}

bool ToolRow::event(QEvent* event) {
  const bool handled = QWidget::event(event);
  if (event->type() == QEvent::LayoutRequest && isVisible()) place();
  return handled;
}

}  // namespace norvik::desktop
