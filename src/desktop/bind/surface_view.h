#pragma once
// A drawing surface on the screen.

#include "graphics/surface.h"

#include <QImage>
#include <QWidget>

#include <optional>

namespace norvik::desktop {

/// Shows the pixels of a surface as they are, in its middle. A larger widget shows each as a square
/// of as many pixels of the screen as fit; a smaller one shows the whole picture smaller. The wheel
/// brings the place under the mouse nearer, the middle button moves what is seen, and a double
/// click with it shows the whole picture again.
class SurfaceView : public QWidget {
 public:
  SurfaceView(const graphics::Surface& surface, QWidget* parent);

  /// Where the picture is in the widget.
  QRectF pictureBox() const;
  /// The pixel of the surface at a place of the widget; beside the picture one beside the surface.
  QPoint pixelAt(const QPointF& place) const;
  /// Moves the picture from the middle, by pixels of the surface, and lets what lies below show
  /// through where it is white.
  void placeOver(QPoint offset);
  /// Lies over the picture, as large as it is, and is clear where it is white; an empty one is
  /// none.
  void setMark(const QImage& mark);
  /// Takes the surface's present size for its own best.
  void follow();

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  QSizeF fittingSize() const;
  void zoomTo(qreal zoom, const QPointF& place);

  const graphics::Surface& surface_;
  QSize shown_;
  qreal zoom_ = 1;                 ///< of the size that fits
  QPointF middle_{0.5, 0.5};       ///< what part of the picture is in the widget's middle
  std::optional<QPointF> moving_;  ///< where the middle button holds the picture
  QPoint offset_;
  bool seeThrough_ = false;
  QImage mark_;
};

}  // namespace norvik::desktop
