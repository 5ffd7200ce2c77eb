#pragma once
// A drawing surface on the screen.

#include "graphics/surface.h"

#include <QWidget>

namespace norvik::desktop {

/// Shows the pixels of a surface as they are, in its middle. A larger widget shows each as a square
/// of as many pixels of the screen as fit; a smaller one shows the whole picture smaller.
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
  /// Takes the surface's present size for its own best.
  void follow();

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const graphics::Surface& surface_;
  QSize shown_;
  QPoint offset_;
  bool seeThrough_ = false;
};

}  // namespace norvik::desktop
