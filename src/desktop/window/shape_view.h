#pragma once
// A small window that shows what a morph does to a body part.

#include "channels/mirror/part_shape.h"

#include <QWidget>

namespace norvik::desktop {

/// The part's lines at rest, pale, and with the morph over them. The mouse and the arrow keys turn
/// it, the wheel and the keys + and - bring it nearer, Escape closes it. It changes nothing.
class ShapeView : public QWidget {
 public:
  ShapeView(channels::PartShape shape, const QString& title, QWidget& parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void frame();
  void turn(double across, double up);
  void zoom(double times);
  QPointF onScreen(const channels::Vertex& vertex) const;
  void draw(QPainter& painter, const std::vector<channels::Vertex>& vertices) const;

  channels::PartShape shape_;
  channels::Vertex middle_{};  ///< of both shapes
  double size_ = 1;            ///< of the longest side of their box
  double across_ = 0;          ///< the turns, in degrees
  double up_ = 0;
  double zoom_ = 1;
  QPointF grip_;  ///< where the mouse was last
};

}  // namespace norvik::desktop
