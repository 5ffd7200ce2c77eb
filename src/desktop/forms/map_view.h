#pragma once
// A picture that is looked at closely.

#include <QGraphicsView>

#include <functional>

class QGraphicsPixmapItem;

namespace norvik::desktop {

/// Shows a picture whole, or as large as the operator likes: the wheel zooms at the mouse, a drag
/// moves the picture. Until the operator zooms it follows the size of the window.
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

 protected:
  void wheelEvent(QWheelEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void scaleTo(double zoom);
  double zoomThatFits() const;
  void follow();

  QGraphicsPixmapItem* picture_;
  std::function<void()> zoomed_;
  /// What decides the zoom: the operator, the window's size, or that too, but not above 1.
  enum class Rule { chosen, whole, wholeAtMost } rule_ = Rule::wholeAtMost;
};

}  // namespace norvik::desktop
