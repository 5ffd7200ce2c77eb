#include "desktop/cover_picture.h"

#include "desktop/icons.h"

#include <QEvent>
#include <QPainter>

namespace norvik::desktop {

CoverPicture::CoverPicture(const QString& picture, QWidget& parent)
    : QWidget(&parent), picture_(pictureNamed(picture)) {
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::Base);
  parent.installEventFilter(this);
}

void CoverPicture::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  picture_.paint(&painter, rect(), Qt::AlignCenter);
}

void CoverPicture::showEvent(QShowEvent* event) {
  setGeometry(parentWidget()->rect());
  raise();
  QWidget::showEvent(event);
}

bool CoverPicture::eventFilter(QObject* watched, QEvent* event) {
  if (watched == parentWidget() && event->type() == QEvent::Resize) {
    setGeometry(parentWidget()->rect());
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace norvik::desktop
