#pragma once
// The tiles of the closing animation.

#include <QPixmap>
#include <QPoint>
#include <QWidget>

#include <vector>

namespace norvik::desktop {

/// Lies over the whole window and fills with tiles. A key or a click says that it is enough.
class Curtain : public QWidget {
 public:
  /// `drawn` is the size that the animation believes the window has, in its pixels.
  Curtain(QWidget& window, QSize drawn, int tile);

  /// False when the operator has seen enough.
  bool drawTile(int left, int top);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  QSize drawn_;
  int tile_;
  std::vector<QPoint> places_;
  bool enough_ = false;
};

}  // namespace norvik::desktop
