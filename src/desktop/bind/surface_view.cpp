#include "desktop/bind/surface_view.h"

#include "desktop/images.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace norvik::desktop {

SurfaceView::SurfaceView(const graphics::Surface& surface, QWidget* parent)
    : QWidget(parent), surface_(surface), shown_(surface.width(), surface.height()) {
  // A click on the picture takes the keys away from lists and boxes, which would use them up.
  setFocusPolicy(Qt::ClickFocus);
}

QSize SurfaceView::sizeHint() const {
  return shown_;
}

QSize SurfaceView::minimumSizeHint() const {
  constexpr int kLeast = 64;
  return shown_.boundedTo({kLeast, kLeast});
}

void SurfaceView::follow() {
  const QSize size(surface_.width(), surface_.height());
  if (size == shown_) return;
  shown_ = size;
  updateGeometry();
}

QRectF SurfaceView::pictureBox() const {
  const QSizeF pixels(surface_.width(), surface_.height());
  if (pixels.isEmpty()) return {};
  const qreal dots = devicePixelRatioF();
  const qreal fits = std::min(width() * dots / pixels.width(), height() * dots / pixels.height());
  const QSizeF size = pixels * ((fits >= 1 ? std::floor(fits) : fits) / dots);
  // On a whole dot of the screen, so that each pixel is as large as the next.
  const auto onDot = [dots](qreal place) { return std::floor(place * dots) / dots; };
  return {QPointF(onDot((width() - size.width()) / 2), onDot((height() - size.height()) / 2)),
          size};
}

QPoint SurfaceView::pixelAt(const QPointF& place) const {
  const QRectF box = pictureBox();
  if (box.isEmpty()) return {-1, -1};
  const QPointF inside = place - box.topLeft();
  const auto pixel = [](qreal at, qreal size, int pixels) {
    return static_cast<int>(std::floor(at * pixels / size));
  };
  return {pixel(inside.x(), box.width(), surface_.width()),
          pixel(inside.y(), box.height(), surface_.height())};
}

void SurfaceView::paintEvent(QPaintEvent*) {
  const QRectF box = pictureBox();
  if (box.isEmpty()) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::SmoothPixmapTransform,
                        box.width() * devicePixelRatioF() < surface_.width());
  painter.drawImage(box, imageOn(surface_));
}

}  // namespace norvik::desktop
