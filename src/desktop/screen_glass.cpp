#include "desktop/screen_glass.h"

#include "desktop/images.h"

#include <QCursor>
#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>

namespace norvik::desktop {

namespace {

QScreen* pointerScreen() {
  QScreen* const screen = QGuiApplication::screenAt(QCursor::pos());
  return screen != nullptr ? screen : QGuiApplication::primaryScreen();
}

}  // namespace

bool mayLookAtScreen() {
  return QGuiApplication::platformName() == QLatin1String("xcb");
}

std::optional<front::ScreenPoint> screenPointer() {
  QScreen* const screen = pointerScreen();
  if (screen == nullptr || !mayLookAtScreen()) return std::nullopt;
  const QRect whole = screen->geometry();
  const QPoint at = QCursor::pos() - whole.topLeft();
  const QColor colour = screen->grabWindow(0, at.x(), at.y(), 1, 1).toImage().pixelColor(0, 0);
  return front::ScreenPoint{
      {at.x(), at.y()},
      whole.width(),
      whole.height(),
      graphics::colourOf(static_cast<unsigned>(colour.red()), static_cast<unsigned>(colour.green()),
                         static_cast<unsigned>(colour.blue()))};
}

graphics::Surface enlargedScreen(const front::ScreenPart& part, int width, int height) {
  QScreen* const screen = pointerScreen();
  if (screen == nullptr || !mayLookAtScreen() || part.width <= 0 || part.height <= 0) {
    return {width, height};
  }
  const QPixmap seen = screen->grabWindow(0, part.left, part.top, part.width, part.height);
  if (seen.isNull()) return {width, height};
  return surfaceOf(seen.toImage().scaled(width, height));
}

}  // namespace norvik::desktop
