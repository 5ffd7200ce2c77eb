#include "desktop/bind/surface_view.h"

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace norvik::desktop {

namespace {

/// The picture with holes where it is white.
QImage withoutWhite(const QImage& picture) {
  QImage cut = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
  constexpr QRgb kWhite = 0xFFFFFFFF;
  for (int y = 0; y < cut.height(); ++y) {
    auto* row = reinterpret_cast<QRgb*>(cut.scanLine(y));
    std::replace(row, row + cut.width(), kWhite, QRgb{0});
  }
  return cut;
}

}  // namespace

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

void SurfaceView::placeOver(QPoint offset) {
  seeThrough_ = true;
  offset_ = offset;
  update();
}

QRectF SurfaceView::pictureBox() const {
  const QSizeF pixels(surface_.width(), surface_.height());
  if (pixels.isEmpty()) return {};
  const qreal dots = devicePixelRatioF();
  const qreal fits = std::min(width() * dots / pixels.width(), height() * dots / pixels.height());
  const QSizeF size = pixels * ((fits >= 1 ? std::floor(fits) : fits) / dots);
  // On a whole dot of the screen, so that each pixel is as large as the next.
  const auto onDot = [dots](qreal place) { return std::floor(place * dots) / dots; };
  const QPointF middle(onDot((width() - size.width()) / 2), onDot((height() - size.height()) / 2));
  const qreal dot = size.width() / pixels.width();
  return {middle + QPointF(offset_) * dot, size};
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
  // The image stands on the surface's own pixels.
  const int rowBytes = surface_.width() * static_cast<int>(sizeof(std::uint32_t));
  const QImage image(reinterpret_cast<const uchar*>(surface_.pixels().data()), surface_.width(),
                     surface_.height(), rowBytes, QImage::Format_RGB32);
  QPainter painter(this);
  painter.setRenderHint(QPainter::SmoothPixmapTransform,
                        box.width() * devicePixelRatioF() < surface_.width());
  if (!seeThrough_) return painter.drawImage(box, image);
  constexpr qreal kSolid = 0.8;
  painter.setOpacity(kSolid);
  painter.drawImage(box, withoutWhite(image));
}

}  // namespace norvik::desktop
