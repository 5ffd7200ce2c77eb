#include "desktop/bind/surface_binding.h"

#include <QMouseEvent>

namespace norvik::desktop {

SurfaceBinding::SurfaceBinding(Dispatcher& dispatcher, front::PictureBox& picture,
                               SurfaceView& view)
    : WidgetBinding(dispatcher, picture, view, Clicks::own), picture_(picture), view_(view) {
  view.setContextMenuPolicy(Qt::NoContextMenu);
}

void SurfaceBinding::refresh() {
  view_.follow();
  view_.update();
  WidgetBinding::refresh();
}

bool SurfaceBinding::eventFilter(QObject* watched, QEvent* event) {
  // Who draws fast presses twice within a double click's time.
  const bool second = event->type() == QEvent::MouseButtonDblClick && view_.isEnabled();
  if (second && !picture_.doubleClicked.hasHandlers()) {
    return mousePressed(*static_cast<QMouseEvent*>(event));
  }
  return WidgetBinding::eventFilter(watched, event);
}

QPoint SurfaceBinding::placeOf(const QPointF& place) const {
  return view_.pixelAt(place);
}

bool SurfaceBinding::onPicture(const QMouseEvent& event) const {
  const QPoint pixel = placeOf(event.position());
  return picture_.surface().holds({pixel.x(), pixel.y()});
}

bool SurfaceBinding::mousePressed(const QMouseEvent& event) {
  // What is not held any more was let go where nobody could tell.
  held_ &= event.buttons();
  held_.setFlag(event.button(), onPicture(event));
  if (!held_.testFlag(event.button())) return false;
  return WidgetBinding::mousePressed(event);
}

bool SurfaceBinding::mouseReleased(const QMouseEvent& event) {
  if (!held_.testFlag(event.button())) return false;
  held_.setFlag(event.button(), false);
  // The handler of the release may change the picture's size.
  const bool click = event.button() == Qt::LeftButton && onPicture(event);
  WidgetBinding::mouseReleased(event);
  if (click) raise(picture_.clicked);
  return false;
}

void SurfaceBinding::mouseMoved(const QMouseEvent& event) {
  const bool drag = (event.buttons() & (Qt::LeftButton | Qt::RightButton)) != 0;
  if (drag ? held_ == Qt::NoButton : !onPicture(event)) return;
  WidgetBinding::mouseMoved(event);
}

}  // namespace norvik::desktop
