#include "desktop/bind/surface_view.h"

#include "desktop/images.h"

#include <QImage>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

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
  zoom_ = 1;
  shown_ = size;
  updateGeometry();
}

void SurfaceView::setMark(const QImage& mark) {
  mark_ = mark.isNull() ? mark : withoutWhite(mark);
  update();
}

void SurfaceView::placeOver(QPoint offset) {
  seeThrough_ = true;
  offset_ = offset;
  update();
}

/// The size in which the whole picture is seen.
QSizeF SurfaceView::fittingSize() const {
  const QSizeF pixels(surface_.width(), surface_.height());
  if (pixels.isEmpty()) return {};
  const qreal dots = devicePixelRatioF();
  const qreal fits = std::min(width() * dots / pixels.width(), height() * dots / pixels.height());
  return pixels * ((fits >= 1 ? std::floor(fits) : fits) / dots);
}

QRectF SurfaceView::pictureBox() const {
  const QSizeF size = fittingSize() * zoom_;
  if (size.isEmpty()) return {};
  // On a whole dot of the screen, so that each pixel is as large as the next.
  const qreal dots = devicePixelRatioF();
  const auto begin = [dots](qreal room, qreal length, qreal middle) {
    const qreal place = length <= room ? (room - length) / 2
                                       : std::clamp(room / 2 - middle * length, room - length, 0.0);
    return std::floor(place * dots) / dots;
  };
  const QPointF corner(begin(width(), size.width(), middle_.x()),
                       begin(height(), size.height(), middle_.y()));
  const qreal dot = surface_.width() == 0 ? 0 : size.width() / surface_.width();
  return {corner + QPointF(offset_) * dot, size};
}

/// Zooms so that what is at a place stays there, as far as the picture reaches.
void SurfaceView::zoomTo(qreal zoom, const QPointF& place) {
  constexpr qreal kMost = 16;
  const QRectF before = pictureBox();
  if (before.isEmpty()) return;
  const QPointF part((place.x() - before.left()) / before.width(),
                     (place.y() - before.top()) / before.height());
  zoom_ = std::clamp(zoom, 1.0, kMost);
  const QSizeF size = fittingSize() * zoom_;
  middle_ = {std::clamp(part.x() + (width() / 2.0 - place.x()) / size.width(), 0.0, 1.0),
             std::clamp(part.y() + (height() / 2.0 - place.y()) / size.height(), 0.0, 1.0)};
  update();
}

void SurfaceView::wheelEvent(QWheelEvent* event) {
  constexpr qreal kStep = 120;
  zoomTo(zoom_ * std::pow(std::sqrt(2.0), event->angleDelta().y() / kStep), event->position());
  event->accept();
}

void SurfaceView::mousePressEvent(QMouseEvent* event) {
  moving_.reset();
  if (event->button() == Qt::MiddleButton) moving_ = event->position();
  QWidget::mousePressEvent(event);
}

void SurfaceView::mouseMoveEvent(QMouseEvent* event) {
  if (!moving_ || !event->buttons().testFlag(Qt::MiddleButton)) {
    return QWidget::mouseMoveEvent(event);
  }
  const QSizeF size = fittingSize() * zoom_;
  const QPointF by = event->position() - *moving_;
  moving_ = event->position();
  middle_ = {std::clamp(middle_.x() - by.x() / size.width(), 0.0, 1.0),
             std::clamp(middle_.y() - by.y() / size.height(), 0.0, 1.0)};
  update();
}

void SurfaceView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::MiddleButton) zoomTo(1, event->position());
  QWidget::mouseDoubleClickEvent(event);
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
  const QImage image = imageOn(surface_);
  constexpr qreal kSolid = 0.8;
  if (!seeThrough_) {
    painter.drawImage(box, image);
    painter.setOpacity(kSolid);
    if (!mark_.isNull()) painter.drawImage(box, mark_);
    return;
  }
  painter.setOpacity(kSolid);
  painter.drawImage(box, withoutWhite(image));
}

}  // namespace norvik::desktop
