#include "desktop/window/curtain.h"

#include <QIcon>
#include <QKeyEvent>
#include <QPainter>

namespace norvik::desktop {

Curtain::Curtain(QWidget& window, QSize drawn, int tile)
    : QWidget(&window), drawn_(drawn), tile_(tile) {
  setObjectName(QStringLiteral("PictureTile"));
  setFocusPolicy(Qt::StrongFocus);
  setGeometry(window.rect());
  show();
  raise();
  setFocus();
}

bool Curtain::drawTile(int left, int top) {
  if (enough_) return false;
  places_.emplace_back(left, top);
  update();
  return true;
}

void Curtain::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(width() / static_cast<qreal>(drawn_.width()),
                height() / static_cast<qreal>(drawn_.height()));
  const QIcon picture(QStringLiteral(":/icons/norvik.svg"));
  for (const QPoint& place : places_) {
    const QRect tile(place, QSize(tile_, tile_));
    painter.fillRect(QRectF(tile).adjusted(-0.5, -0.5, 0.5, 0.5), QColor("#1b4b6f"));
    picture.paint(&painter, tile.adjusted(8, 8, -8, -8));
  }
}

void Curtain::keyPressEvent(QKeyEvent*) {
  enough_ = true;
}

void Curtain::mousePressEvent(QMouseEvent*) {
  enough_ = true;
}

}  // namespace norvik::desktop
