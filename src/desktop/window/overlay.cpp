#include "desktop/window/overlay.h"

#include <QEvent>
#include <QGraphicsDropShadowEffect>
#include <QKeyEvent>

namespace norvik::desktop {

Overlay::Overlay(QWidget& parent, Placer placer) : QFrame(&parent), placer_(std::move(placer)) {
  setFrameStyle(QFrame::StyledPanel);
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::Button);
  auto* shadow = new QGraphicsDropShadowEffect(this);
  shadow->setBlurRadius(24);
  shadow->setOffset(0, 4);
  shadow->setColor(QColor(0, 0, 0, 90));
  setGraphicsEffect(shadow);
  parent.installEventFilter(this);
  hide();
}

void Overlay::place() {
  setGeometry(placer_(parentWidget()->rect(), sizeHint()));
}

void Overlay::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && onEscape_) return onEscape_();
  QFrame::keyPressEvent(event);
}

bool Overlay::event(QEvent* event) {
  const bool handled = QFrame::event(event);
  // What the card holds has changed its size.
  if (event->type() == QEvent::LayoutRequest && isVisible()) place();
  return handled;
}

void Overlay::showEvent(QShowEvent* event) {
  place();
  raise();
  QFrame::showEvent(event);
}

bool Overlay::eventFilter(QObject* watched, QEvent* event) {
  if (watched == parentWidget() && event->type() == QEvent::Resize && isVisible()) place();
  return QFrame::eventFilter(watched, event);
}

QRect inTheMiddle(const QRect& area, const QSize& wanted) {
  QRect place({}, wanted.boundedTo(area.size() - QSize(32, 32)));
  place.moveCenter(area.center());
  return place;
}

}  // namespace norvik::desktop
