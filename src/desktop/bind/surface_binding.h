#pragma once
// Drawing surfaces: what the tools draw, and the mouse on it.

#include "desktop/bind/surface_view.h"
#include "desktop/bind/widget_binding.h"
#include "front/picture_box.h"

namespace norvik::desktop {

/// Repaints a surface when its control says so, and delivers the mouse in the surface's pixels. A
/// drag that began on the picture is delivered to its end, wherever that is; what begins beside the
/// picture is not.
class SurfaceBinding : public WidgetBinding {
 public:
  SurfaceBinding(Dispatcher& dispatcher, front::PictureBox& picture, SurfaceView& view);

 protected:
  void refresh() override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  QPoint placeOf(const QPointF& place) const override;
  bool mousePressed(const QMouseEvent& event) override;
  bool mouseReleased(const QMouseEvent& event) override;
  void mouseMoved(const QMouseEvent& event) override;

 private:
  bool onPicture(const QMouseEvent& event) const;

  front::PictureBox& picture_;
  SurfaceView& view_;
  Qt::MouseButtons held_;  ///< the buttons that were pressed on the picture
};

}  // namespace norvik::desktop
