#pragma once
// A picture that is looked at closely.

#include <QGraphicsView>

#include <functional>

class QGraphicsPixmapItem;

namespace norvik::desktop {

/// Shows a picture whole, or as large as the operator likes: the wheel zooms at the mouse, a drag
/// moves the picture. As long as it is shown whole it follows the size of the window.
class MapView : public QGraphicsView {
 public:
  explicit MapView(QWidget* parent);

  /// Called whenever the zoom has changed.
  void setZoomed(std::function<void()> zoomed) { zoomed_ = std::move(zoomed); }

  /// Shows a picture: whole if it is larger than the window, else as large as it is.
  void setPicture(const QImage& picture);
  bool empty() const;

  /// Pixels of the screen to one of the picture.
  double zoom() const;
  void setZoom(double zoom);
  /// A step nearer, or with a negative number farther away.
  void zoomBy(int steps);
  void fit();
  bool fits() const { return fits_; }

 protected:
  void wheelEvent(QWheelEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void scaleTo(double zoom);

  QGraphicsPixmapItem* picture_;
  std::function<void()> zoomed_;
  bool fits_ = false;
};

}  // namespace norvik::desktop
