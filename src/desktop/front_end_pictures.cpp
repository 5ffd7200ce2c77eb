// The pictures that the tools ask for: out of files, the clipboard, and the screen itself.

#include "desktop/desktop_front_end.h"
#include "desktop/images.h"
#include "desktop/screen_glass.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>

namespace norvik::desktop {

std::optional<graphics::Surface> DesktopFrontEnd::decodePicture(std::string_view bytes) {
  return decodedPicture(bytes);
}

bool DesktopFrontEnd::clipboardHoldsPicture() const {
  const QMimeData* data = QApplication::clipboard()->mimeData();
  return data != nullptr && data->hasImage();
}

void DesktopFrontEnd::copyPicture(const graphics::Surface& picture) {
  // A copy: the clipboard outlives the surface.
  QApplication::clipboard()->setImage(imageOn(picture).copy());
}

void DesktopFrontEnd::clearClipboard() {
  QApplication::clipboard()->clear();
}

std::optional<front::ScreenPoint> DesktopFrontEnd::pointer() {
  return screenPointer();
}

graphics::Surface DesktopFrontEnd::enlarged(const front::ScreenPart& part, int width, int height) {
  return enlargedScreen(part, width, height);
}

}  // namespace norvik::desktop
