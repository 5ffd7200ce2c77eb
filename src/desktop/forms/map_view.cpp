#include "desktop/forms/map_view.h"

#include <QGraphicsPixmapItem>
#include <QKeyEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace norvik::desktop {

namespace {

constexpr double kLeastZoom = 0.02;
constexpr double kMostZoom = 32;
constexpr double kStep = 1.25;

}  // namespace

MapView::MapView(QWidget* parent)
    : QGraphicsView(new QGraphicsScene, parent), picture_(new QGraphicsPixmapItem) {
  scene()->setParent(this);
  scene()->addItem(picture_);
  setDragMode(ScrollHandDrag);
  setTransformationAnchor(AnchorUnderMouse);
  setBackgroundRole(QPalette::Dark);
  setBackgroundBrush(palette().dark());
  setAccessibleName(QStringLiteral("The map"));
}

bool MapView::empty() const {
  return picture_->pixmap().isNull();
}

void MapView::setPicture(const QImage& picture) {
  picture_->setPixmap(QPixmap::fromImage(picture));
  scene()->setSceneRect(picture_->boundingRect());
  rule_ = Rule::wholeAtMost;
  follow();
}

double MapView::zoom() const {
  return transform().m11() * devicePixelRatioF();
}

void MapView::scaleTo(double zoom) {
  const double scale = std::clamp(zoom, kLeastZoom, kMostZoom) / devicePixelRatioF();
  setTransform(QTransform::fromScale(scale, scale));
  // Single pixels are looked at as squares; what is smaller than it is looks better smooth.
  picture_->setTransformationMode(zoom < 1 ? Qt::SmoothTransformation : Qt::FastTransformation);
  if (zoomed_) zoomed_();
}

void MapView::setZoom(double zoom) {
  rule_ = Rule::chosen;
  scaleTo(zoom);
}

void MapView::zoomBy(int steps) {
  if (!empty()) setZoom(zoom() * std::pow(kStep, steps));
}

void MapView::fit() {
  rule_ = Rule::whole;
  follow();
}

double MapView::zoomThatFits() const {
  const QRectF whole = picture_->boundingRect();
  const QSize room = maximumViewportSize();
  return std::min(room.width() / whole.width(), room.height() / whole.height()) *
         devicePixelRatioF();
}

/// Zooms by the rule.
void MapView::follow() {
  if (empty() || rule_ == Rule::chosen) return;
  const double fits = zoomThatFits();
  scaleTo(rule_ == Rule::whole ? fits : std::min(fits, 1.0));
}

void MapView::wheelEvent(QWheelEvent* event) {
  const int turn = event->angleDelta().y();
  if (turn != 0) zoomBy(turn > 0 ? 1 : -1);
  event->accept();
}

void MapView::resizeEvent(QResizeEvent* event) {
  QGraphicsView::resizeEvent(event);
  follow();
}

void MapView::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Plus:
      return zoomBy(1);
    case Qt::Key_Minus:
      return zoomBy(-1);
    case Qt::Key_0:
      return fit();
    case Qt::Key_1:
      return setZoom(1);
    default:
      QGraphicsView::keyPressEvent(event);
  }
}

}  // namespace norvik::desktop
